#pragma once

#include <QPointF>
#include <QQuickItem>

namespace OndelControls {

/// An area by which the pointer moves the window, or sizes it at some of its edges. The compositor takes the
/// pointer over with the drag's first step and keeps the release of the button, which an item or handler of
/// the toolkit would wait for.
class WindowGrip : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    /// The edges to size the window at. None: it is moved.
    Q_PROPERTY(Qt::Edges edges READ edges WRITE setEdges NOTIFY edgesChanged)

public:
    explicit WindowGrip(QQuickItem* parent = nullptr);

    Qt::Edges edges() const { return m_edges; }
    void setEdges(Qt::Edges edges);
    Q_SIGNAL void edgesChanged();

    Q_SIGNAL void doubleClicked();
    /// By the right button.
    Q_SIGNAL void menuWanted(QPointF place);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    Qt::Edges m_edges;
    QPointF m_pressedAt;
};

} // namespace OndelControls
