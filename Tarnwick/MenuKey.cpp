#include "Tarnwick/MenuKey.h"

#include <QKeyEvent>

#include <utility>

void MenuKey::setWindow(QWindow* window) {
    if (m_window == window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

bool MenuKey::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress:
        m_isAlone = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt;
        break;
    case QEvent::KeyRelease:
        if (std::exchange(m_isAlone, false) && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
            Q_EMIT tapped();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::FocusOut: // the window manager has used the key
        m_isAlone = false;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
