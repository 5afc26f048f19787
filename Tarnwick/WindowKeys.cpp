#include "Tarnwick/WindowKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

void WindowKey::setWindow(QWindow* window) {
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

void MenuKey::setHeld(bool held) {
    if (std::exchange(m_isHeld, held) != held)
        Q_EMIT isHeldChanged();
}

bool MenuKey::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        m_isAlone = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
        setHeld(m_isAlone);
        break;
    case QEvent::KeyRelease:
        setHeld(false);
        if (std::exchange(m_isAlone, false) && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            Q_EMIT tapped();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut: // the window manager has used the key
        m_isAlone = false;
        setHeld(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
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
