#include "OndelControls/Card.h"

#include "OndelControls/CardPieces.h"
#include "OndelControls/PixelSnapNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGRectangleNode>
#include <QSGRendererInterface>
#include <QSGTexture>

#include <cmath>
#include <memory>

namespace OndelControls {

namespace {

/// A card's pieces. The software renderer knows the place of pieces that come later only by a parent that is
/// a transform.
class CardNode final : public PixelSnapNode {
public:
    void show(const CardTile& tile, QSize card, double scale, QQuickWindow& window) {
        setPlace({}, scale);
        removePieces();
        if (tile.image.cacheKey() != m_shown || !m_texture) {
            m_texture.reset(window.createTextureFromImage(tile.image));
            m_shown = tile.image.cacheKey();
        }
        for (const CardPiece& piece : cardPieces(tile, card))
            add(piece, scale, window);
    }

private:
    void add(const CardPiece& piece, double scale, QQuickWindow& window) {
        const QRectF place(QPointF(piece.place.topLeft()) / scale, QSizeF(piece.place.size()) / scale);
        // The software renderer softens the edges of rectangles, which would show as seams, and fills with an
        // image of one pixel as fast.
        const bool isSoftware = window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
        QSGNode* node = nullptr;
        if (piece.filled.isValid() && !isSoftware) {
            QSGRectangleNode* rectangle = window.createRectangleNode();
            rectangle->setColor(piece.filled);
            rectangle->setRect(place);
            node = rectangle;
        } else {
            QSGImageNode* image = window.createImageNode();
            image->setTexture(m_texture.get());
            image->setFiltering(QSGTexture::Linear);
            image->setSourceRect(piece.source);
            image->setRect(place);
            node = image;
        }
        node->setFlag(OwnedByParent);
        appendChildNode(node);
    }

    void removePieces() {
        while (QSGNode* piece = firstChild()) {
            removeChildNode(piece);
            delete piece;
        }
    }

    std::unique_ptr<QSGTexture> m_texture;
    qint64 m_shown = 0;
};

} // namespace

Card::Card(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void Card::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        update();
    QQuickItem::itemChange(change, value);
}

void Card::geometryChange(const QRectF& to, const QRectF& from) {
    if (to.size() != from.size())
        update();
    QQuickItem::geometryChange(to, from);
}

QSGNode* Card::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    const double scale = window()->effectiveDevicePixelRatio();
    const QSize pixels(static_cast<int>(std::lround(width() * scale)),
                       static_cast<int>(std::lround(height() * scale)));
    if (pixels.isEmpty()) {
        delete node;
        return nullptr;
    }
    auto* card = node ? static_cast<CardNode*>(node) : new CardNode;
    card->show(cardTile(m_look, pixels, scale), pixels, scale, *window());
    return card;
}

} // namespace OndelControls
