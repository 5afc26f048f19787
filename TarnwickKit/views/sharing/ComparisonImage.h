#pragma once

#include "TarnwickKit/views/sharing/ReportImage.h"

#include <vector>

namespace TarnwickKit::views::ComparisonImage {

/// The comparison card of some runs, in the order given; as ReportImage::render. All comparisons share one
/// file.
ImageFile render(const std::vector<model::RunRecord>& runs, const Palette& palette);
QFuture<ImageFile> renderLater(const std::vector<model::RunRecord>& runs, const Palette& palette);

} // namespace TarnwickKit::views::ComparisonImage
