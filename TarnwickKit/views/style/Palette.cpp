#include "TarnwickKit/views/style/Palette.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdlib>

namespace TarnwickKit::views {

namespace {

struct Shade {
    QRgb rgb;
    double opacity = 1;

    QColor color() const {
        QColor result = QColor::fromRgb(rgb);
        result.setAlphaF(static_cast<float>(opacity));
        return result;
    }
};

struct Entry {
    QColor Palette::* field;
    std::array<Shade, 4> tones; ///< light, dark, and both in high contrast
};

constexpr Entry entries[] = {
    {&Palette::bg, {{{0xfbf9f5}, {0x0b1828}, {0xffffff}, {0x000000}}}},
    {&Palette::body, {{{0xfbf9f5}, {0x0d1b2d}, {0xffffff}, {0x000000}}}},
    {&Palette::sidebar, {{{0xf3eee5}, {0x0f2034}, {0xffffff}, {0x000000}}}},
    {&Palette::panel, {{{0xffffff}, {0x142a43}, {0xffffff}, {0x000000}}}},
    {&Palette::panel2, {{{0xfbf9f5}, {0x18304b}, {0xffffff}, {0x000000}}}},
    {&Palette::tbTop, {{{0xfbf9f5}, {0x1b3450}, {0xffffff}, {0x000000}}}},
    {&Palette::tbBot, {{{0xfbf9f5}, {0x132740}, {0xffffff}, {0x000000}}}},
    {&Palette::border, {{{0xe7e1d6}, {0x22405f}, {0x3c3c3c}, {0xd0d0d0}}}},
    {&Palette::borderSoft, {{{0xebe5da}, {0x1c3651}, {0x5c5c5c}, {0xa0a0a0}}}},
    {&Palette::text, {{{0x1a2230}, {0xeef4fa}, {0x000000}, {0xffffff}}}},
    {&Palette::text2, {{{0x4a5262}, {0xa9bbcf}, {0x1c1c1c}, {0xf0f0f0}}}},
    {&Palette::text3, {{{0x656c79}, {0x6f86a0}, {0x2e2e2e}, {0xdcdcdc}}}},
    {&Palette::heading, {{{0x0f2f52}, {0xfaf6ef}, {0x000000}, {0xffffff}}}},
    {&Palette::coral, {{{0xff6b47}, {0xff8a63}, {0xa82a06}, {0xff9a78}}}},
    {&Palette::coral2, {{{0xf2593a}, {0xfc8058}, {0xa82a06}, {0xff9a78}}}},
    {&Palette::coralink, {{{0xd2552f}, {0xff9b78}, {0x8f2200}, {0xffb399}}}},
    {&Palette::coralSoft, {{{0xfdece5}, {0x2c2a3a}, {0xffffff}, {0x000000}}}},
    {&Palette::teal, {{{0x14889e}, {0x3cc4d8}, {0x005866}, {0x5fe0f2}}}},
    {&Palette::teal2, {{{0x31b8cf}, {0x48d0e0}, {0x005866}, {0x5fe0f2}}}},
    {&Palette::tealSoft, {{{0xdff1f4}, {0x10303f}, {0xffffff}, {0x000000}}}},
    {&Palette::amber, {{{0xd9902f}, {0xe6a24e}, {0x6e4300}, {0xffc878}}}},
    {&Palette::good, {{{0x2f9e6a}, {0x43c98c}, {0x00522f}, {0x74eeb2}}}},
    {&Palette::goodDot, {{{0x3fbf7f}, {0x43c98c}, {0x00522f}, {0x74eeb2}}}},
    {&Palette::chip, {{{0xf3eee5}, {0x18304b}, {0xffffff}, {0x000000}}}},
    {&Palette::sel, {{{0xffffff}, {0x18304b}, {0xffffff}, {0x000000}}}},
    {&Palette::grid, {{{0xebe5da}, {0x1d3651}, {0x767676}, {0x767676}}}},
    {&Palette::track, {{{0xebe5da}, {0x22405f}, {0xd8d8d8}, {0x303030}}}},
    {&Palette::writeFill, {{{0xff6b47, 0.14}, {0xff8a63, 0.18}, {0xa82a06, 0.2}, {0xff9a78, 0.25}}}},
    {&Palette::readFill, {{{0x14889e, 0.14}, {0x3cc4d8, 0.18}, {0x005866, 0.2}, {0x5fe0f2, 0.25}}}},
    {&Palette::shadow, {{{0x143c5a, 0.1}, {0x000000, 0.55}, {0x000000, 0.3}, {0x000000, 0.55}}}},
    {&Palette::blue, {{{0x164673}, {0x4a8cc0}, {0x0b3a66}, {0x8cc4ff}}}},
    {&Palette::accent, {{{0x0f2f52}, {0xfaf6ef}, {0x000000}, {0xffffff}}}},
    {&Palette::onAccent, {{{0xfaf6ef}, {0x0f2f52}, {0xffffff}, {0x000000}}}},
};

constexpr Shade seriesOfTones[4][7] = {
    {{0xf0603a}, {0x0f95ad}, {0x6a55e0}, {0x1f9e62}, {0x2a78d6}, {0xeda100}, {0xe0489c}},
    {{0xf4714a}, {0x1fa9bf}, {0x8775f0}, {0x2bb074}, {0x4b92e6}, {0xe0a12c}, {0xe356a4}},
    {{0xa82a06}, {0x005866}, {0x4a35c0}, {0x00522f}, {0x0b4f9e}, {0x6e4300}, {0x9c1463}},
    {{0xff9a78}, {0x5fe0f2}, {0xb9adff}, {0x74eeb2}, {0x8cc4ff}, {0xffc878}, {0xff9bd2}},
};

} // namespace

QColor hex(QStringView digits) {
    bool isNumber = false;
    const qulonglong value = digits.toULongLong(&isNumber, 16);
    return isNumber ? QColor::fromRgb(static_cast<QRgb>(value & 0xffffff)) : QColor(Qt::black);
}

Palette::Palette(Tone tone) {
    const auto index = static_cast<std::size_t>(tone);
    for (const Entry& entry : entries)
        this->*entry.field = entry.tones[index].color();
    for (const Shade& shade : seriesOfTones[index])
        series.append(shade.color());
}

std::pair<QColor, QColor> Palette::badgeColors(model::RunRecord::Kind kind) const {
    switch (kind) {
    case model::RunRecord::Kind::internalDrive:
        return {teal2, blue};
    case model::RunRecord::Kind::external:
        return {QColor::fromRgb(0xff9a74), coral2};
    case model::RunRecord::Kind::network:
        return {QColor::fromRgb(0xe0993f), QColor::fromRgb(0xb9772a)};
    }
    std::abort();
}

// Never destroyed: views may still exist when the process ends.
const Palette& Palette::light() {
    static const Palette* const palette = new Palette(Tone::Light);
    return *palette;
}

const Palette& Palette::dark() {
    static const Palette* const palette = new Palette(Tone::Dark);
    return *palette;
}

const Palette& Palette::contrastLight() {
    static const Palette* const palette = new Palette(Tone::ContrastLight);
    return *palette;
}

const Palette& Palette::contrastDark() {
    static const Palette* const palette = new Palette(Tone::ContrastDark);
    return *palette;
}

} // namespace TarnwickKit::views
