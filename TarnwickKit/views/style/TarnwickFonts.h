#pragma once

#include <QFont>
#include <QString>

namespace TarnwickKit::views::TarnwickFonts {

/// Registers the font files ("ttf") that lie in the folder `bundle`, then those in its subfolder "Fonts". The
/// first call counts, any later one returns at once. A file that is missing or no font is skipped without a
/// word, and text falls back to the system's font.
///
/// Threads: the main thread, before the first view is built.
void registerFrom(const QString& bundle = QStringLiteral(":/tarnwick"));

/// What the application sets as its font, so that every text draws its glyphs unhinted: hinted ones lose the
/// feet of letters when a view is rendered at another scale than the screen's.
QFont applicationFont();

} // namespace TarnwickKit::views::TarnwickFonts
