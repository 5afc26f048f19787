#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"
#include "TarnwickKit/views/style/Palette.h"

#include <QFuture>

#include <filesystem>
#include <optional>
#include <string>

class QQuickItem;

namespace TarnwickKit::views {

/// Where an image lies, or absent when there is none: what all of the following answer.
using ImageFile = std::optional<std::filesystem::path>;

/// Pictures of views as PNG files, in a folder that only this user can enter. A picture of the same name
/// replaces the one before; nothing removes it.
///
/// Threads: main, with a QGuiApplication and the fonts registered. Fails: an absent file, without a word.
namespace ReportImage {

/// Device pixels per logical one in every picture, whatever the screen's scale.
inline constexpr double scale = 2;

/// The report card of a run.
ImageFile render(const model::RunRecord& run, const Palette& palette);
/// The same, encoded and written on another thread, so that a window only waits for the drawing.
QFuture<ImageFile> renderLater(const model::RunRecord& run, const Palette& palette);

/// Any view that is in no window. `baseName`: see fileName.
ImageFile png(QQuickItem& view, const QString& baseName);
/// The same, encoded and written on another thread. nullptr is a view that could not be made.
QFuture<ImageFile> pngLater(QQuickItem* view, const QString& baseName);

/// The file's name for a title: without what would lead to another folder, hide the file, break a line or
/// turn the direction, and no longer than file systems take. It is cut between characters as people count
/// them.
std::string fileName(const QString& baseName);

} // namespace ReportImage

/// The report image of a host application's run. It needs a QGuiApplication, but neither window nor display;
/// the fonts are registered by the first call. Threads: main. Fails: absent.
ImageFile reportImage(const model::TarnwickReport& report, bool dark);

} // namespace TarnwickKit::views
