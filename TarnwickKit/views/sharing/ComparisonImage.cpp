#include "TarnwickKit/views/sharing/ComparisonImage.h"

#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/sharing/CardView.h"

#include <QQuickItem>

namespace TarnwickKit::views {

using Runs = std::vector<model::RunRecord>;

namespace {

const auto baseName = QStringLiteral("Ondel Tarnwick — Comparison");

std::unique_ptr<QQuickItem> comparisonCard(const Runs& runs, const Palette& palette) {
    return newCard(QStringLiteral("ComparisonCard"),
                   {{QStringLiteral("runs"), QVariant::fromValue(ComparedRuns{runs})},
                    {QStringLiteral("link"), productLink()}},
                   palette);
}

} // namespace

ImageFile ComparisonImage::render(const Runs& runs, const Palette& palette) {
    const auto card = comparisonCard(runs, palette);
    return card ? ReportImage::png(*card, baseName) : std::nullopt;
}

QFuture<ImageFile> ComparisonImage::renderLater(const Runs& runs, const Palette& palette) {
    const auto card = comparisonCard(runs, palette);
    return ReportImage::pngLater(card.get(), baseName);
}

} // namespace TarnwickKit::views
