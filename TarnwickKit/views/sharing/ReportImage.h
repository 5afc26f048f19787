#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/views/TarnwickViews.h"
#include "TarnwickKit/views/style/Palette.h"

#include <QByteArray>
#include <QFuture>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QQuickItem;

namespace TarnwickKit::views {

/// An image that was written, and the bytes of its file.
struct SharedPng {
    std::filesystem::path path;
    QByteArray bytes;
};
using SharedPngLater = QFuture<std::optional<SharedPng>>;

/// Pictures of views as PNG files, in a folder that only this user can enter. A picture replaces an earlier
/// one of the same name; nothing removes it.
///
/// Threads: main, with a QGuiApplication and the fonts registered. Fails: an absent file; nothing is logged.
namespace ReportImage {

/// Device pixels per logical one in every picture, whatever the screen's scale.
inline constexpr double scale = 2;

/// The report card of a run.
ImageFile render(const model::RunRecord& run, const Palette& palette);
/// The same, but encoded and written on another thread: the window only waits for the drawing.
SharedPngLater renderLater(const model::RunRecord& run, const Palette& palette);

/// Any view that is not in a window. `baseName`: see fileName.
ImageFile png(QQuickItem& view, const QString& baseName);
/// The same, but encoded and written on another thread. A view that could not be created is nullptr.
SharedPngLater pngLater(QQuickItem* view, const QString& baseName);

/// The file name for a title. Characters that would lead to another folder, hide the file, break a line or
/// change the reading direction are replaced. The name is cut at 255 bytes, between characters as people
/// count them, in front of the ending.
std::string fileName(const QString& baseName, std::string_view ending = ".png");

} // namespace ReportImage

namespace ComparisonImage {

/// The comparison card of some runs, in the order given; as ReportImage::render. All comparisons share one
/// file.
ImageFile render(const std::vector<model::RunRecord>& runs, const Palette& palette);
SharedPngLater renderLater(const std::vector<model::RunRecord>& runs, const Palette& palette);

} // namespace ComparisonImage

} // namespace TarnwickKit::views
