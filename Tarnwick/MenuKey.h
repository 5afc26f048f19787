#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

/// Detects a press and release of Alt alone, which opens the menu bar. Threads: main.
class MenuKey : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QWindow* window READ window WRITE setWindow NOTIFY windowChanged)
public:
    using QObject::QObject;

    QWindow* window() const { return m_window; }
    void setWindow(QWindow* window);
    Q_SIGNAL void windowChanged();
    Q_SIGNAL void tapped();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWindow> m_window;
    bool m_isAlone = false;
};
