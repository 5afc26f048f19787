#include "TarnwickKit/views/sharing/SharedImage.h"

#include "OndelDesktop/FileHandOff.h"
#include "TarnwickKit/model/language/Language.h"
#include "TarnwickKit/views/sharing/FileWriting.h"
#include "TarnwickKit/views/window/Dialogs.h"
#include "TarnwickKit/views/window/LanguageSetting.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>

#include <system_error>

namespace TarnwickKit::views {

namespace fs = std::filesystem;

namespace {

struct SharedImageText {
    Q_DECLARE_TR_FUNCTIONS(SharedImageText)
};

} // namespace

SharedImage::SharedImage(QObject* parent)
    : QObject(parent) {}

SharedImage::~SharedImage() = default;

void SharedImage::makeReport(const model::RunRecord& run, const Palette* palette) {
    const model::EnglishTexts english(LanguageSetting::wantsEnglishCards());
    if (!isBusy())
        await(ReportImage::renderLater(run, *palette));
}

void SharedImage::makeComparison(const ComparedRuns& runs, const Palette* palette) {
    const model::EnglishTexts english(LanguageSetting::wantsEnglishCards());
    if (!isBusy())
        await(ComparisonImage::renderLater(runs.runs, *palette));
}

void SharedImage::await(const SharedPngLater& image) {
    m_making = image;
    m_making.then(this, [this](const std::optional<SharedPng>& png) {
        if (!png)
            return;
        m_image = *png;
        Q_EMIT ready();
    });
}

void SharedImage::copy() {
    auto* data = new QMimeData;
    data->setData(QStringLiteral("image/png"), m_image.bytes);
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->setMimeData(data);
    Q_EMIT told(clipboard->ownsClipboard() ? SharedImageText::tr("Image copied")
                                           : SharedImageText::tr("The image couldn't be copied."));
}

void SharedImage::saveAs(QQuickItem* item) {
    if (!m_dialogs)
        m_dialogs = std::make_unique<Dialogs>();
    m_dialogs->setWindow(item->window());
    m_dialogs->askForImageFile(QFile::decodeName(m_image.path.filename().c_str()),
                               [this](const fs::path& target) { save(target); });
}

void SharedImage::save(const fs::path& target) {
    writeLater(this, target, m_image.bytes, [this, target](const std::error_code& error) {
        Q_EMIT told(
            error ? SharedImageText::tr("The image couldn't be saved: %1")
                        .arg(QString::fromStdString(error.message()))
                  : SharedImageText::tr("Saved as “%1”").arg(QFile::decodeName(target.filename().c_str())));
    });
}

void SharedImage::showInFolder() {
    OndelDesktop::showInFolder(m_image.path, [self = QPointer(this)] {
        if (self)
            Q_EMIT self->told(SharedImageText::tr("The folder couldn't be opened."));
    });
}

void SharedImage::sendByEmail() {
    OndelDesktop::sendByEmail(m_image.path, m_image.path.stem().string(), [self = QPointer(this)] {
        if (self)
            Q_EMIT self->told(SharedImageText::tr("No mail program could be opened."));
    });
}

} // namespace TarnwickKit::views
