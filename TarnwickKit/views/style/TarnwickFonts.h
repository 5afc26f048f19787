#pragma once

#include "OndelCore/Export.h"

#include <QFont>
#include <QString>

namespace TarnwickKit::views {

namespace TarnwickFonts {

/// Registers the font files ("ttf") in the folder `bundle`, then those in its subfolder "Fonts". Only the
/// first call has an effect. A file that is missing or not a font is skipped silently, and text falls back to
/// the system's font.
///
/// Threads: the main thread, before the first view is built.
ONDEL_PUBLIC void registerFrom(const QString& bundle = QStringLiteral(":/tarnwick"));

/// The application's font. It turns hinting off for every text: hinted glyphs lose their serifs when a view
/// is rendered at another scale than the screen's.
ONDEL_PUBLIC QFont applicationFont();

} // namespace TarnwickFonts

} // namespace TarnwickKit::views
