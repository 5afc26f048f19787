#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

/// Sees the keys of a window before its items do. Threads: main.
class WindowKey : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY windowChanged)
public:
    using QObject::QObject;

    QWindow* window() const { return m_window; }
    void setWindow(QWindow* window);
    Q_SIGNAL void windowChanged();

private:
    QPointer<QWindow> m_window;
};

/// Detects a press and release of Alt alone, which opens the menu bar.
class MenuKey : public WindowKey {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isHeld READ isHeld NOTIFY isHeldChanged)
public:
    using WindowKey::WindowKey;
    bool isHeld() const { return m_isHeld; }
    Q_SIGNAL void isHeldChanged();
    Q_SIGNAL void tapped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setHeld(bool held);

    bool m_isAlone = false;
    bool m_isHeld = false;
};

/// Detects a press of Escape that nothing in the window has a use for, as an open menu or a text field has.
class EscapeKey : public WindowKey {
    Q_OBJECT
    QML_ELEMENT
public:
    using WindowKey::WindowKey;
    Q_SIGNAL void pressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_isPassingOn = false;
};
