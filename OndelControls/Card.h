#pragma once

#include "OndelControls/CardTile.h"

#include <QQmlEngine>
#include <QQuickItem>

namespace OndelControls {

/// A surface with continuous corners, an outline within its edge and a shadow beneath it, which reaches
/// beyond the item. It costs no more when it is large. Whatever is put into it lies above it.
///
/// Units: logical pixels. Colours start as transparent.
class Card : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY lookChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY lookChanged)
    /// Where it is set the fill runs from `color` at the top left to it at `endPoint`.
    Q_PROPERTY(QColor endColor READ endColor WRITE setEndColor NOTIFY lookChanged)
    /// Units: parts of the width and the height. The far corner at first.
    Q_PROPERTY(QPointF endPoint READ endPoint WRITE setEndPoint NOTIFY lookChanged)
    Q_PROPERTY(QColor outline READ outline WRITE setOutline NOTIFY lookChanged)
    Q_PROPERTY(double outlineWidth READ outlineWidth WRITE setOutlineWidth NOTIFY lookChanged)
    Q_PROPERTY(QColor shadowColor READ shadowColor WRITE setShadowColor NOTIFY lookChanged)
    Q_PROPERTY(double shadowRadius READ shadowRadius WRITE setShadowRadius NOTIFY lookChanged)
    /// Downwards.
    Q_PROPERTY(double shadowOffset READ shadowOffset WRITE setShadowOffset NOTIFY lookChanged)

public:
    explicit Card(QQuickItem* parent = nullptr);

    double radius() const { return m_look.radius; }
    void setRadius(double radius) { set(m_look.radius, radius); }
    QColor color() const { return m_look.color; }
    void setColor(const QColor& color) { set(m_look.color, color); }
    QColor endColor() const { return m_look.endColor; }
    void setEndColor(const QColor& color) { set(m_look.endColor, color); }
    QPointF endPoint() const { return m_look.endPoint; }
    void setEndPoint(QPointF point) { set(m_look.endPoint, point); }
    QColor outline() const { return m_look.outline; }
    void setOutline(const QColor& color) { set(m_look.outline, color); }
    double outlineWidth() const { return m_look.outlineWidth; }
    void setOutlineWidth(double width) { set(m_look.outlineWidth, width); }
    QColor shadowColor() const { return m_look.shadow; }
    void setShadowColor(const QColor& color) { set(m_look.shadow, color); }
    double shadowRadius() const { return m_look.shadowRadius; }
    void setShadowRadius(double radius) { set(m_look.shadowRadius, radius); }
    double shadowOffset() const { return m_look.shadowOffset; }
    void setShadowOffset(double offset) { set(m_look.shadowOffset, offset); }
    Q_SIGNAL void lookChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    template <typename Value>
    void set(Value& member, const Value& value) {
        if (member == value)
            return;
        member = value;
        update();
        Q_EMIT lookChanged();
    }

    CardLook m_look;
};

} // namespace OndelControls
