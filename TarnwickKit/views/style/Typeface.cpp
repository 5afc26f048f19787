#include "TarnwickKit/views/style/Typeface.h"

#include <cmath>

namespace TarnwickKit::views {

namespace {

/// Asked before the system's other fonts: some of those have a few emoji without colours, and a sequence such
/// as a flag falls into its parts where two fonts share it.
const auto emojiFamily = QStringLiteral("Noto Color Emoji");

QFont font(const QStringList& families, double size, int weight) {
    QFont result;
    result.setFamilies(families + QStringList(emojiFamily));
    result.setWeight(static_cast<QFont::Weight>(weight));
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setPixelSize(static_cast<int>(std::lround(size)));
    return result;
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

} // namespace TarnwickKit::views
