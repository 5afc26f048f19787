#include "OndelControls/frame/WindowGrip.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QStyleHints>

namespace OndelControls {

namespace {

Qt::CursorShape shapeAt(Qt::Edges edges) {
    const bool isUpright = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool isLevel = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (isUpright && isLevel)
        return edges.testFlag(Qt::TopEdge) == edges.testFlag(Qt::LeftEdge) ? Qt::SizeFDiagCursor
                                                                           : Qt::SizeBDiagCursor;
    return isUpright ? Qt::SizeHorCursor : isLevel ? Qt::SizeVerCursor : Qt::ArrowCursor;
}

} // namespace

WindowGrip::WindowGrip(QQuickItem* parent)
    : QQuickItem(parent) {
    setAcceptedMouseButtons(Qt::LeftButton | Qt::RightButton);
}

void WindowGrip::setEdges(Qt::Edges edges) {
    if (edges == m_edges)
        return;
    m_edges = edges;
    setCursor(shapeAt(edges));
    Q_EMIT edgesChanged();
}

void WindowGrip::mousePressEvent(QMouseEvent* event) {
    m_pressedAt = event->position();
    if (event->button() == Qt::RightButton && !m_edges)
        Q_EMIT menuWanted(m_pressedAt);
}

void WindowGrip::mouseMoveEvent(QMouseEvent* event) {
    const auto way = (event->position() - m_pressedAt).manhattanLength();
    if (!event->buttons().testFlag(Qt::LeftButton) ||
        (!m_edges && way < QGuiApplication::styleHints()->startDragDistance()))
        return;
    ungrabMouse();
    if (m_edges)
        window()->startSystemResize(m_edges);
    else
        window()->startSystemMove();
}

void WindowGrip::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

} // namespace OndelControls
