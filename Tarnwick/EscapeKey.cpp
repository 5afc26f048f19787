#include "Tarnwick/EscapeKey.h"

#include <QCoreApplication>
#include <QKeyEvent>

void EscapeKey::setWindow(QWindow* window) {
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

/// The window gets the key first, from here: it says by the event whether one of its items has taken it.
bool EscapeKey::eventFilter(QObject* watched, QEvent* event) {
    if (m_isPassingOn || event->type() != QEvent::KeyPress ||
        static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QObject::eventFilter(watched, event);
    m_isPassingOn = true;
    QCoreApplication::sendEvent(watched, event);
    m_isPassingOn = false;
    if (!event->isAccepted())
        Q_EMIT pressed();
    return true;
}
