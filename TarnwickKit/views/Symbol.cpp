#include "TarnwickKit/views/Symbol.h"

#include "TarnwickKit/views/SymbolTable.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <cmath>
#include <memory>

namespace TarnwickKit::views {

namespace {

double toPixelGrid(double value, double scale) { return std::round(value * scale) / scale; }

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
    setImplicitSize(symbolBox(m_size), symbolBox(m_size));
}

void Symbol::setName(const QString& name) {
    Q_ASSERT_X(name.isEmpty() || isSymbol(name), "Symbol", qPrintable(name));
    if (name == m_name)
        return;
    m_name = name;
    redraw();
}

void Symbol::setSize(double size) {
    if (size == m_size)
        return;
    m_size = size;
    setImplicitSize(symbolBox(size), symbolBox(size));
    redraw();
}

void Symbol::setColor(const QColor& color) {
    if (color == m_color)
        return;
    m_color = color;
    redraw();
}

void Symbol::setWeight(int weight) {
    if (weight == m_weight)
        return;
    m_weight = weight;
    redraw();
}

void Symbol::redraw() {
    m_isStale = true;
    update();
    Q_EMIT changed();
}

void Symbol::itemChange(ItemChange change, const ItemChangeData& value) {
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange) {
        m_isStale = true;
        update();
    }
    QQuickItem::itemChange(change, value);
}

void Symbol::geometryChange(const QRectF& to, const QRectF& from) {
    update();
    QQuickItem::geometryChange(to, from);
}

QSGNode* Symbol::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
    auto* picture = static_cast<QSGImageNode*>(node);
    if (m_name.isEmpty() || !isSymbol(m_name)) {
        delete picture;
        m_isStale = true;
        return nullptr;
    }
    const double scale = window()->effectiveDevicePixelRatio();
    const int pixels = static_cast<int>(std::lround(symbolBox(m_size) * scale));
    if (!picture || m_isStale) {
        std::unique_ptr<QSGTexture> texture(
            window()->createTextureFromImage(symbolImage(m_name, pixels, m_color, m_weight)));
        if (!picture) {
            picture = window()->createImageNode();
            picture->setOwnsTexture(true);
            picture->setFiltering(QSGTexture::Linear);
        }
        picture->setTexture(texture.release());
        m_isStale = false;
    }
    const double side = pixels / scale;
    picture->setRect(toPixelGrid((width() - side) / 2, scale), toPixelGrid((height() - side) / 2, scale),
                     side, side);
    return picture;
}

} // namespace TarnwickKit::views
