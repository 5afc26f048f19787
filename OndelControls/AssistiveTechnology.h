#pragma once

#include <QAccessible>
#include <QObject>
#include <QQmlEngine>

namespace OndelControls {

/// Whether assistive technology is connected. It reads only items that exist, and cannot scroll to have
/// others created.
class AssistiveTechnology : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)
public:
    explicit AssistiveTechnology(QObject* parent = nullptr)
        : QObject(parent) {
        QAccessible::installActivationObserver(this);
    }
    ~AssistiveTechnology() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY_MOVE(AssistiveTechnology)

    static bool isActive() { return QAccessible::isActive(); }
    Q_SIGNAL void activeChanged();

private:
    void accessibilityActiveChanged(bool) override { Q_EMIT activeChanged(); }
};

} // namespace OndelControls
