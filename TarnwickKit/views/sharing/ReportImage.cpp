#include "TarnwickKit/views/sharing/ReportImage.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/PrivateFolder.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/sharing/CardView.h"
#include "TarnwickKit/views/sharing/PngEncoding.h"
#include "TarnwickKit/views/sharing/ViewPicture.h"
#include "TarnwickKit/views/style/LegibleText.h"

#include <QCoreApplication>
#include <QPromise>
#include <QQuickItem>
#include <QTextBoundaryFinder>
#include <QThreadPool>

#include <utility>

namespace TarnwickKit::views {

namespace fs = std::filesystem;
using model::RunRecord;

namespace {

const auto titlePrefix = QStringLiteral("Ondel Tarnwick — ");
struct ReportImageText {
    Q_DECLARE_TR_FUNCTIONS(ReportImageText)
};

constexpr qsizetype longestFileName = 255; // bytes; NAME_MAX of every file system in use

QString comparisonName() { return ReportImageText::tr("Ondel Tarnwick — Comparison"); }

/// The longest prefix of `text` with at most `bytes` bytes in UTF-8 that ends at a character boundary.
QString cut(const QString& text, qsizetype bytes) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    for (qsizetype next = finder.toNextBoundary(); next > 0; next = finder.toNextBoundary()) {
        if (text.first(next).toUtf8().size() > bytes)
            break;
        end = next;
    }
    return text.first(end);
}

std::unique_ptr<QQuickItem> reportCard(const RunRecord& run, const Palette& palette) {
    return newCard(
        QStringLiteral("ReportCard"),
        {{QStringLiteral("run"), QVariant::fromValue(run)}, {QStringLiteral("link"), productLink()}},
        palette);
}

std::unique_ptr<QQuickItem> comparisonCard(const std::vector<RunRecord>& runs, const Palette& palette) {
    return newCard(QStringLiteral("ComparisonCard"),
                   {{QStringLiteral("runs"), QVariant::fromValue(ComparedRuns{runs})},
                    {QStringLiteral("link"), productLink()}},
                   palette);
}

std::optional<SharedPng> written(QImage image, const QString& baseName) {
    const auto folder = OndelCore::platform::privateTemporaryFolder();
    QByteArray png = encodedPng(std::exchange(image, QImage()));
    OndelCore::platform::giveBackFreedMemory(); // a picture takes eight megabytes
    if (!folder || png.isEmpty())
        return std::nullopt;
    fs::path path = *folder / ReportImage::fileName(baseName);
    if (OndelCore::platform::replaceFile(path, {png.data(), static_cast<std::size_t>(png.size())},
                                         fs::perms::owner_read | fs::perms::owner_write,
                                         OndelCore::platform::Lasting::untilPowerLoss))
        return std::nullopt;
    return SharedPng{.path = std::move(path), .bytes = std::move(png)};
}

} // namespace

std::string ReportImage::fileName(const QString& baseName, std::string_view ending) {
    QString name = baseName;
    for (QChar& character : name)
        if (character == u'/' || disturbsLine(character))
            character = u'-';
    if (name.startsWith(u'.'))
        name[0] = u'-';
    const std::string stem = cut(name, longestFileName - static_cast<qsizetype>(ending.size())).toStdString();
    return (stem.empty() ? "-" : stem) + std::string(ending);
}

ImageFile ReportImage::png(QQuickItem& view, const QString& baseName) {
    const auto png = written(viewPicture(view, scale), baseName);
    return png ? ImageFile(png->path) : std::nullopt;
}

SharedPngLater ReportImage::pngLater(QQuickItem* view, const QString& baseName) {
    const auto promise = std::make_shared<QPromise<std::optional<SharedPng>>>();
    promise->start();
    QThreadPool::globalInstance()->start(
        [image = view ? viewPicture(*view, scale) : QImage(), baseName, promise]() mutable {
            promise->addResult(written(std::move(image), baseName));
            promise->finish();
        });
    return promise->future();
}

ImageFile ReportImage::render(const RunRecord& run, const Palette& palette) {
    const auto card = reportCard(run, palette);
    return card ? png(*card, titlePrefix + run.screenshotTitle()) : std::nullopt;
}

SharedPngLater ReportImage::renderLater(const RunRecord& run, const Palette& palette) {
    const auto card = reportCard(run, palette);
    return pngLater(card.get(), titlePrefix + run.screenshotTitle());
}

ImageFile ComparisonImage::render(const std::vector<RunRecord>& runs, const Palette& palette) {
    const auto card = comparisonCard(runs, palette);
    return card ? ReportImage::png(*card, comparisonName()) : std::nullopt;
}

SharedPngLater ComparisonImage::renderLater(const std::vector<RunRecord>& runs, const Palette& palette) {
    const auto card = comparisonCard(runs, palette);
    return ReportImage::pngLater(card.get(), comparisonName());
}

} // namespace TarnwickKit::views
