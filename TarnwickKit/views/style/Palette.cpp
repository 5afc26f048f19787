#include "TarnwickKit/views/style/Palette.h"

#include <QString>

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
    Shade light;
    Shade dark;
};

constexpr Entry entries[] = {
    {&Palette::bg, {0xfbf9f5}, {0x0b1828}},
    {&Palette::body, {0xfbf9f5}, {0x0d1b2d}},
    {&Palette::sidebar, {0xf3eee5}, {0x0f2034}},
    {&Palette::panel, {0xffffff}, {0x142a43}},
    {&Palette::panel2, {0xfbf9f5}, {0x18304b}},
    {&Palette::tbTop, {0xfbf9f5}, {0x1b3450}},
    {&Palette::tbBot, {0xfbf9f5}, {0x132740}},
    {&Palette::border, {0xe7e1d6}, {0x22405f}},
    {&Palette::borderSoft, {0xebe5da}, {0x1c3651}},
    {&Palette::text, {0x1a2230}, {0xeef4fa}},
    {&Palette::text2, {0x4a5262}, {0xa9bbcf}},
    {&Palette::text3, {0x656c79}, {0x6f86a0}},
    {&Palette::heading, {0x0f2f52}, {0xfaf6ef}},
    {&Palette::coral, {0xff6b47}, {0xff8a63}},
    {&Palette::coral2, {0xf2593a}, {0xfc8058}},
    {&Palette::coralink, {0xd2552f}, {0xff9b78}},
    {&Palette::coralSoft, {0xfdece5}, {0x2c2a3a}},
    {&Palette::teal, {0x14889e}, {0x3cc4d8}},
    {&Palette::teal2, {0x31b8cf}, {0x48d0e0}},
    {&Palette::tealSoft, {0xdff1f4}, {0x10303f}},
    {&Palette::amber, {0xd9902f}, {0xe6a24e}},
    {&Palette::good, {0x2f9e6a}, {0x43c98c}},
    {&Palette::goodDot, {0x3fbf7f}, {0x43c98c}},
    {&Palette::chip, {0xf3eee5}, {0x18304b}},
    {&Palette::sel, {0xffffff}, {0x18304b}},
    {&Palette::grid, {0xebe5da}, {0x1d3651}},
    {&Palette::track, {0xebe5da}, {0x22405f}},
    {&Palette::writeFill, {0xff6b47, 0.14}, {0xff8a63, 0.18}},
    {&Palette::readFill, {0x14889e, 0.14}, {0x3cc4d8, 0.18}},
    {&Palette::shadow, {0x143c5a, 0.1}, {0x000000, 0.55}},
    {&Palette::blue, {0x164673}, {0x4a8cc0}},
    {&Palette::accent, {0x0f2f52}, {0xfaf6ef}},
    {&Palette::onAccent, {0xfaf6ef}, {0x0f2f52}},
};

constexpr Shade seriesLight[] = {{0xf0603a}, {0x0f95ad}, {0x6a55e0}, {0x1f9e62},
                                 {0x2a78d6}, {0xeda100}, {0xe0489c}};
constexpr Shade seriesDark[] = {{0xf4714a}, {0x1fa9bf}, {0x8775f0}, {0x2bb074},
                                {0x4b92e6}, {0xe0a12c}, {0xe356a4}};

} // namespace

QColor hex(QStringView digits) {
    bool isNumber = false;
    const qulonglong value = digits.toULongLong(&isNumber, 16);
    return isNumber ? QColor::fromRgb(static_cast<QRgb>(value & 0xffffff)) : QColor(Qt::black);
}

Palette::Palette(Tone tone) {
    for (const Entry& entry : entries)
        this->*entry.field = (tone == Tone::Dark ? entry.dark : entry.light).color();
    for (const Shade& shade : tone == Tone::Dark ? seriesDark : seriesLight)
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

} // namespace TarnwickKit::views
