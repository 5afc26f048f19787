#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

/// Detects a press of Escape that nothing in the window has a use for, as an open menu or a text field has.
/// Threads: main.
class EscapeKey : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY windowChanged)
public:
    using QObject::QObject;

    QWindow* window() const { return m_window; }
    void setWindow(QWindow* window);
    Q_SIGNAL void windowChanged();
    Q_SIGNAL void pressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWindow> m_window;
    bool m_isPassingOn = false;
};
