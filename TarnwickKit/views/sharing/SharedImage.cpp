#include "TarnwickKit/views/sharing/SharedImage.h"

#include "OndelCore/platform/storage/ReplaceFile.h"
#include "OndelDesktop/FileHandOff.h"
#include "TarnwickKit/views/window/Dialogs.h"

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QPromise>
#include <QQuickItem>
#include <QQuickWindow>
#include <QThreadPool>

#include <system_error>

namespace TarnwickKit::views {

namespace fs = std::filesystem;

namespace {

QByteArray content(const fs::path& path) {
    QFile file(QFile::decodeName(path.c_str()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Copies the image to where the user wants it, with the permissions of an ordinary file.
std::error_code copyTo(const fs::path& target, const QByteArray& image) {
    constexpr fs::perms ordinary = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                                   fs::perms::group_write | fs::perms::others_read | fs::perms::others_write;
    if (image.isEmpty())
        return std::make_error_code(std::errc::no_such_file_or_directory);
    return OndelCore::platform::replaceFile(target, {image.data(), static_cast<std::size_t>(image.size())},
                                            ordinary);
}

} // namespace

SharedImage::SharedImage(QObject* parent)
    : QObject(parent) {}

SharedImage::~SharedImage() = default;

void SharedImage::makeReport(const model::RunRecord& run, const Palette* palette) {
    if (!isBusy())
        await(ReportImage::renderLater(run, *palette));
}

void SharedImage::makeComparison(const ComparedRuns& runs, const Palette* palette) {
    if (!isBusy())
        await(ComparisonImage::renderLater(runs.runs, *palette));
}

void SharedImage::await(const QFuture<ImageFile>& image) {
    m_making = image;
    m_making.then(this, [this](const ImageFile& file) {
        if (!file)
            return;
        m_file = *file;
        Q_EMIT ready();
    });
}

void SharedImage::copy() {
    const QByteArray png = content(m_file);
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (!png.isEmpty()) {
        auto* data = new QMimeData;
        data->setData(QStringLiteral("image/png"), png);
        clipboard->setMimeData(data);
    }
    Q_EMIT told(!png.isEmpty() && clipboard->ownsClipboard() ? tr("Image copied")
                                                             : tr("The image couldn't be copied."));
}

void SharedImage::saveAs(QQuickItem* item) {
    if (!m_dialogs)
        m_dialogs = std::make_unique<Dialogs>();
    m_dialogs->setWindow(item->window());
    m_dialogs->askForImageFile(QFile::decodeName(m_file.filename().c_str()),
                               [this](const fs::path& target) { save(target); });
}

/// On another thread: the disk may be the slow one that the image is about.
void SharedImage::save(const fs::path& target) {
    const auto promise = std::make_shared<QPromise<std::error_code>>();
    promise->start();
    promise->future().then(this, [this, target](const std::error_code& error) {
        Q_EMIT told(error ? tr("The image couldn't be saved: %1").arg(QString::fromStdString(error.message()))
                          : tr("Saved as “%1”").arg(QFile::decodeName(target.filename().c_str())));
    });
    QThreadPool::globalInstance()->start([source = m_file, target, promise] {
        promise->addResult(copyTo(target, content(source)));
        promise->finish();
    });
}

void SharedImage::showInFolder() {
    OndelDesktop::showInFolder(m_file, [self = QPointer(this)] {
        if (self)
            Q_EMIT self->told(tr("The folder couldn't be opened."));
    });
}

void SharedImage::sendByEmail() {
    OndelDesktop::sendByEmail(m_file, m_file.stem().string(), [self = QPointer(this)] {
        if (self)
            Q_EMIT self->told(tr("No mail program could be opened."));
    });
}

} // namespace TarnwickKit::views
