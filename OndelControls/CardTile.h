#pragma once

#include <QColor>
#include <QImage>
#include <QMargins>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QSize>

namespace OndelControls {

/// How a card is painted.
///
/// Units: logical pixels.
struct CardLook {
    double radius = 0;
    QColor color = Qt::transparent;
    QColor endColor;        ///< valid: the fill runs from `color` at the top left to this one
    QPointF endPoint{1, 1}; ///< where it ends; parts of the width and the height
    QColor outline = Qt::transparent;
    double outlineWidth = 1; ///< lies within the edge, so that it is sharp at every scale
    QColor shadow = Qt::transparent;
    double shadowRadius = 0; ///< two standard deviations of the blur
    double shadowOffset = 0; ///< downwards

    bool operator==(const CardLook&) const = default;
};

/// A rectangle whose corners run into its sides without a break in curvature. A radius of half the shorter
/// side or more gives a capsule.
QPainterPath continuousRectangle(const QRectF& rectangle, double radius);

/// What of a card needs painting: its corners and edges, and of what merely goes on between them three
/// pixels.
///
/// Units: device pixels.
struct CardTile {
    QImage image;
    QMargins outside; ///< how far the picture reaches beyond the card
    QMargins fixed;   ///< the parts of the picture that must not be stretched
};

/// The tile for a card of `size` device pixels on a screen of `scale` device pixels per logical one. A card
/// too small to be stretched in a direction gets a tile of its own size in that direction. Tiles are kept and
/// given again.
CardTile cardTile(const CardLook& look, QSize size, double scale);

} // namespace OndelControls
