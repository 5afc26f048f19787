#include "OndelDrawing/Card.h"

#include "OndelDrawing/SnappedNode.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <array>
#include <cmath>
#include <memory>

namespace OndelDrawing {

namespace {

/// A tile's picture, laid out as up to nine pieces. The software renderer knows the place of pieces that come
/// later only by a parent that is a transform.
class CardNode final : public SnappedNode {
public:
    void show(const CardTile& tile, QSize card, double scale, QQuickWindow& window) {
        setPlace({}, scale);
        if (tile.image.cacheKey() != m_shown || !m_texture) {
            removePieces();
            m_texture.reset(window.createTextureFromImage(tile.image));
            m_shown = tile.image.cacheKey();
        }
        const Edges across = edges(tile.image.width(), card.width(), tile.outside.left(),
                                   tile.outside.right(), tile.fixed.left(), tile.fixed.right());
        const Edges down = edges(tile.image.height(), card.height(), tile.outside.top(),
                                 tile.outside.bottom(), tile.fixed.top(), tile.fixed.bottom());
        QSGNode* piece = firstChild();
        for (const Span& row : down)
            for (const Span& column : across) {
                if (row.length <= 0 || column.length <= 0)
                    continue;
                auto* image = static_cast<QSGImageNode*>(piece ? piece : addPiece(window));
                image->setSourceRect(
                    QRectF(column.source, row.source, column.sourceLength, row.sourceLength));
                image->setRect(QRectF(column.start / scale, row.start / scale, column.length / scale,
                                      row.length / scale));
                piece = image->nextSibling();
            }
        while (piece) {
            QSGNode* next = piece->nextSibling();
            removeChildNode(piece);
            delete piece;
            piece = next;
        }
    }

private:
    struct Span {
        double source, sourceLength, start, length;
    };
    using Edges = std::array<Span, 3>;

    /// Where the three parts of one direction come from and go to.
    static Edges edges(int tile, int card, int before, int after, int fixedBefore, int fixedAfter) {
        const int total = card + before + after;
        if (total <= tile)
            return {Span{0, double(tile), double(-before), double(total)}, {}, {}};
        // The middle of the three pixels that go on, so that no filter reaches what lies beside them.
        const double stretched = fixedBefore + 1;
        return {Span{0, double(fixedBefore), double(-before), double(fixedBefore)},
                Span{stretched, 1, double(fixedBefore - before), double(total - fixedBefore - fixedAfter)},
                Span{double(tile - fixedAfter), double(fixedAfter), double(card + after - fixedAfter),
                     double(fixedAfter)}};
    }

    QSGImageNode* addPiece(QQuickWindow& window) {
        QSGImageNode* image = window.createImageNode();
        image->setTexture(m_texture.get());
        image->setFiltering(QSGTexture::Linear);
        image->setFlag(OwnedByParent);
        appendChildNode(image);
        return image;
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

} // namespace OndelDrawing
