#pragma once

#include <QImage>
#include <QPointF>
#include <QQmlEngine>
#include <QQuickItem>

namespace OndelControls {

/// An item that shows one image, painted in the screen's own pixels, and painted again only when it must be.
class ImageItem : public QQuickItem {
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit ImageItem(QQuickItem* parent = nullptr);

protected:
    struct Picture {
        QImage image;  ///< null: nothing is shown
        QPointF place; ///< of its top left corner in the item; logical pixels
    };

    /// Units: `scale` is device pixels per logical one.
    /// Threads: the renderer's, while the main thread waits.
    virtual Picture paint(double scale) = 0;

    /// The picture before may stand for the new one until the next.
    virtual bool canWait() const { return false; }

    void redraw();

    /// Takes a property's new value; says whether it is one.
    template <typename Value>
    bool take(Value& member, const Value& value) {
        if (member == value)
            return false;
        member = value;
        redraw();
        return true;
    }

    QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void geometryChange(const QRectF& to, const QRectF& from) override;

private:
    bool m_isStale = true;
};

} // namespace OndelControls
