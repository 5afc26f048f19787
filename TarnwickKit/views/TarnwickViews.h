#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"

#include <filesystem>
#include <optional>

class QQmlEngine;

namespace TarnwickKit::views {

/// Lets an engine's QML files `import TarnwickKit.views`: TarnwickView, which shows an AnalyzerModel as the
/// application's window does, and TarnwickChart. The fonts are registered too. Threads: main, with a
/// QGuiApplication, before the engine loads a file that imports it.
ONDEL_PUBLIC void addTo(QQmlEngine& engine);

/// Where an image was written; absent on failure.
using ImageFile = std::optional<std::filesystem::path>;

/// The report image of a host application's run: a PNG file, 1616 pixels wide, in a folder that only this
/// user can enter. It needs a QGuiApplication, but neither window nor display; the fonts are registered by
/// the first call. Threads: main. Fails: absent.
ONDEL_PUBLIC ImageFile reportImage(const model::TarnwickReport& report, bool dark);

} // namespace TarnwickKit::views
