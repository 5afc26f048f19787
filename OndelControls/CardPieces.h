#pragma once

#include "OndelControls/CardTile.h"

#include <QRect>

#include <vector>

namespace OndelControls {

/// One rectangle of a card.
///
/// Units: device pixels.
struct CardPiece {
    QRect place;   ///< seen from the card's top left corner
    QRect source;  ///< what of the tile's picture shows there
    QColor filled; ///< valid: it is nothing but this colour, and opaque
};

/// How a card is put together of its tile. What is of one opaque colour, which is nearly all of a large card,
/// is told as such: a renderer fills it without blending and leaves out what lies beneath. What nothing is
/// seen of is left out.
std::vector<CardPiece> cardPieces(const CardTile& tile, QSize card);

} // namespace OndelControls
