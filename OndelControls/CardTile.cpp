#include "OndelControls/CardTile.h"

#include <QCache>
#include <QLinearGradient>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace OndelControls {

namespace {

/// How far along a side a continuous corner reaches, in radii, and where the ends of its three curves lie.
constexpr double cornerReach = 1.528665;

/// Of a radius that its place does not allow, this much may be given up for the continuous shape.
constexpr double leastFit = 0.85;

/// One third of a Gaussian blur: the mean of `2 * half + 1` values, over lines `step` apart in memory.
void boxBlur(uchar* pixels, int count, qsizetype step, int half, std::vector<uchar>& line) {
    line.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        line[static_cast<std::size_t>(i)] = pixels[i * step];
    const int width = 2 * half + 1;
    int sum = 0;
    for (int i = 0; i < std::min(half, count); ++i)
        sum += line[static_cast<std::size_t>(i)];
    for (int i = 0; i < count; ++i) {
        const int entering = i + half;
        const int leaving = i - half - 1;
        if (entering < count)
            sum += line[static_cast<std::size_t>(entering)];
        if (leaving >= 0)
            sum -= line[static_cast<std::size_t>(leaving)];
        pixels[i * step] = static_cast<uchar>((sum + width / 2) / width);
    }
}

void blur(QImage& mask, double sigma) {
    // Three boxes whose variances add up to the Gaussian's.
    const int half = std::max(1, static_cast<int>(std::lround((std::sqrt(4 * sigma * sigma + 1) - 1) / 2)));
    std::vector<uchar> line;
    const qsizetype stride = mask.bytesPerLine();
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < mask.height(); ++y)
            boxBlur(mask.bits() + y * stride, mask.width(), 1, half, line);
        for (int x = 0; x < mask.width(); ++x)
            boxBlur(mask.bits() + x, mask.height(), stride, half, line);
    }
}

QImage shadowOf(const QPainterPath& shape, QSize size, const QColor& color, double sigma) {
    QImage mask(size, QImage::Format_Alpha8);
    mask.fill(0);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillPath(shape, Qt::black);
    }
    blur(mask, sigma);
    QImage tinted = mask.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(tinted.rect(), color);
    return tinted;
}

QBrush fillOf(const CardLook& look, const QRectF& card) {
    if (!look.endColor.isValid())
        return look.color;
    const QPointF way(look.endPoint.x() * card.width(), look.endPoint.y() * card.height());
    QLinearGradient gradient(card.topLeft(), card.topLeft() + way);
    gradient.setColorAt(0, look.color);
    gradient.setColorAt(1, look.endColor);
    return gradient;
}

/// The measures of a tile, from which it is painted.
struct Plan {
    QMargins outside;
    QMargins fixed;
    QSize card;
    double sigma = 0;
    int offset = 0;

    Plan(const CardLook& look, QSize size, double scale)
        : card(size) {
        int reach = 0;
        if (look.shadow.alpha() > 0 && (look.shadowRadius > 0 || look.shadowOffset > 0)) {
            sigma = look.shadowRadius / 2 * scale;
            offset = static_cast<int>(std::lround(look.shadowOffset * scale));
            reach = static_cast<int>(std::ceil(3 * sigma));
            outside = QMargins(reach, std::max(0, reach - offset), reach, std::max(0, reach + offset));
        }
        const double shortSide = std::min(size.width(), size.height());
        const int corner =
            static_cast<int>(std::ceil(std::min(cornerReach * look.radius * scale, shortSide)));
        const int edge = std::max(corner, static_cast<int>(std::ceil(look.outlineWidth * scale)));
        const int side = std::max(edge, reach) + 1;
        const int top = std::max(edge, reach + offset) + 1;
        const int bottom = std::max(edge, reach - offset) + 1;
        fixed = QMargins(outside.left() + side, outside.top() + top, outside.right() + side,
                         outside.bottom() + bottom);
        const bool canStretch = !look.endColor.isValid();
        shrink(canStretch && size.width() > 2 * side + 3, 2 * side + 3, &QSize::setWidth);
        shrink(canStretch && size.height() > top + bottom + 3, top + bottom + 3, &QSize::setHeight);
    }

    QSize picture() const { return card.grownBy(outside); }

private:
    void shrink(bool possible, int length, void (QSize::*set)(int)) {
        if (possible)
            (card.*set)(length);
    }
};

/// Sharp on the inside as well: at a scale between whole ones a line of whole pixels is drawn with such.
double widthOfOutline(const CardLook& look, double scale) {
    const double exact = look.outlineWidth * scale;
    return scale == std::floor(scale) ? exact : std::max(1.0, std::round(exact));
}

QImage paintTile(const CardLook& look, const Plan& plan, double scale) {
    QImage image(plan.picture(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QRectF card(QPoint(plan.outside.left(), plan.outside.top()), QSizeF(plan.card));
    const QPainterPath shape = continuousRectangle(card, look.radius * scale);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (plan.sigma > 0 || plan.offset > 0)
        painter.drawImage(0, 0,
                          shadowOf(shape.translated(0, plan.offset), image.size(), look.shadow, plan.sigma));
    painter.fillPath(shape, fillOf(look, card));
    if (look.outline.alpha() > 0 && look.outlineWidth > 0) {
        const double width = widthOfOutline(look, scale);
        const double inset = width / 2;
        painter.strokePath(continuousRectangle(card.adjusted(inset, inset, -inset, -inset),
                                               std::max(0.0, look.radius * scale - inset)),
                           QPen(look.outline, width));
    }
    return image;
}

QString keyOf(const CardLook& look, QSize card, double scale) {
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    const auto color = [](const QColor& value) {
        return value.isValid() ? QString::number(value.rgba(), 16) : QString();
    };
    return QStringList{number(look.radius),
                       color(look.color),
                       color(look.endColor),
                       number(look.endPoint.x()),
                       number(look.endPoint.y()),
                       color(look.outline),
                       number(look.outlineWidth),
                       color(look.shadow),
                       number(look.shadowRadius),
                       number(look.shadowOffset),
                       number(card.width()),
                       number(card.height()),
                       number(scale)}
        .join(QLatin1Char(' '));
}

} // namespace

QPainterPath continuousRectangle(const QRectF& rectangle, double radius) {
    const double half = std::min(rectangle.width(), rectangle.height()) / 2;
    QPainterPath path;
    const double fitting = std::min(radius, half / cornerReach);
    if (radius >= half || fitting < leastFit * radius) {
        path.addRoundedRect(rectangle, std::min(radius, half), std::min(radius, half));
        return path;
    }

    // One corner as seen from it: the ends and handles of three curves, first along one side, then along the
    // other.
    const auto corner = [&](QPointF origin, QPointF along, QPointF across, bool isFirst) {
        const auto at = [&](double a, double b) { return origin + fitting * (a * along + b * across); };
        if (isFirst)
            path.moveTo(at(cornerReach, 0));
        else
            path.lineTo(at(cornerReach, 0));
        path.cubicTo(at(1.08849296, 0), at(0.86840694, 0), at(0.63149379, 0.07491139));
        path.cubicTo(at(0.37282383, 0.16905956), at(0.16905956, 0.37282383), at(0.07491139, 0.63149379));
        path.cubicTo(at(0, 0.86840694), at(0, 1.08849296), at(0, cornerReach));
    };
    const QPointF right(1, 0);
    const QPointF down(0, 1);
    corner(rectangle.topLeft(), right, down, true);
    corner(rectangle.bottomLeft(), -down, right, false);
    corner(rectangle.bottomRight(), -right, -down, false);
    corner(rectangle.topRight(), down, -right, false);
    path.closeSubpath();
    return path;
}

CardTile cardTile(const CardLook& look, QSize size, double scale) {
    const Plan plan(look, size, scale);
    static QCache<QString, QImage> images(8 << 20); // bytes
    const QString key = keyOf(look, plan.card, scale);
    if (const QImage* known = images.object(key))
        return {*known, plan.outside, plan.fixed};
    const QImage image = paintTile(look, plan, scale);
    images.insert(key, new QImage(image), image.sizeInBytes());
    return {image, plan.outside, plan.fixed};
}

} // namespace OndelControls
