#include "OndelControls/ImageItem.h"

#include "OndelControls/PixelSnapNode.h"

#include <QQuickWindow>
#include <QSGImageNode>

namespace OndelControls {

ImageItem::ImageItem(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
}

void ImageItem::redraw() {
    m_isStale = true;
    update();
}

void ImageItem::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        redraw();
    QQuickItem::itemChange(change, value);
}

void ImageItem::geometryChange(const QRectF& to, const QRectF& from) {
    if (to.size() != from.size())
        redraw();
    QQuickItem::geometryChange(to, from);
}

QSGNode* ImageItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    if (node && !m_isStale)
        return node;
    if (node && canWait())
        return node;
    m_isStale = false;
    const double scale = window()->effectiveDevicePixelRatio();
    const Picture picture = size().isEmpty() ? Picture() : paint(scale);
    if (picture.image.isNull()) {
        delete node;
        return nullptr;
    }
    auto* shown = static_cast<PixelSnapNode*>(node);
    if (!shown) {
        shown = new PixelSnapNode;
        QSGImageNode* image = window()->createImageNode();
        image->setOwnsTexture(true);
        image->setFiltering(QSGTexture::Linear);
        image->setFlag(QSGNode::OwnedByParent);
        shown->appendChildNode(image);
    }
    shown->setPlace(picture.place, scale);
    auto* image = static_cast<QSGImageNode*>(shown->firstChild());
    image->setTexture(window()->createTextureFromImage(picture.image));
    image->setRect(QRectF(QPointF(), QSizeF(picture.image.size()) / scale));
    return shown;
}

} // namespace OndelControls
