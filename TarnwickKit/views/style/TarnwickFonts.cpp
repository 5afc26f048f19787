#include "TarnwickKit/views/style/TarnwickFonts.h"

#include "TarnwickKit/views/style/Typeface.h"

#include <QDir>
#include <QFontDatabase>

#include <cmath>

namespace TarnwickKit::views {

namespace {

/// Searched before the system's other fonts: some of them hold a few monochrome emoji, and a sequence such as
/// a flag is drawn as its parts when they come from different fonts.
const auto emojiFamily = QStringLiteral("Noto Color Emoji");

QFont font(const QStringList& families, double size, int weight) {
    QFont result;
    result.setFamilies(families + QStringList(emojiFamily));
    result.setWeight(static_cast<QFont::Weight>(weight));
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setPixelSize(static_cast<int>(std::lround(size)));
    return result;
}

void registerFolder(const QDir& folder) {
    const auto files = folder.entryInfoList({QStringLiteral("*.ttf")}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        QFontDatabase::addApplicationFont(file.filePath());
}

} // namespace

QFont Typeface::display(double size, int weight) {
    return font({QStringLiteral("Space Grotesk")}, size, weight);
}

QFont Typeface::figures(double size, int weight) {
    return font({QStringLiteral("Space Grotesk Figures"), QStringLiteral("Space Grotesk")}, size, weight);
}

QFont Typeface::text(double size, int weight) { return font({QStringLiteral("Figtree")}, size, weight); }

QFont Typeface::mono(double size, double spacing) {
    QFont result = font({QStringLiteral("IBM Plex Mono")}, size, QFont::Normal);
    if (spacing != 0)
        result.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    return result;
}

void TarnwickFonts::registerFrom(const QString& bundle) {
    static bool isRegistered = false;
    if (isRegistered)
        return;
    isRegistered = true;
    registerFolder(QDir(bundle));
    registerFolder(QDir(bundle + QStringLiteral("/Fonts")));
}

QFont TarnwickFonts::applicationFont() { return Typeface::text(13); }

} // namespace TarnwickKit::views
