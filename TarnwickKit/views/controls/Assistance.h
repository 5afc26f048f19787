#pragma once

#include <QAccessible>
#include <QObject>
#include <QQmlEngine>

namespace TarnwickKit::views {

/// Whether assistive technology reads the window. It cannot scroll, so all content must exist while it does.
class Assistance : public QObject, private QAccessible::ActivationObserver {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool active READ isActive NOTIFY activeChanged)
public:
    explicit Assistance(QObject* parent = nullptr)
        : QObject(parent) {
        QAccessible::installActivationObserver(this);
    }
    ~Assistance() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY_MOVE(Assistance)

    static bool isActive() { return QAccessible::isActive(); }
    Q_SIGNAL void activeChanged();

private:
    void accessibilityActiveChanged(bool) override { Q_EMIT activeChanged(); }
};

} // namespace TarnwickKit::views
