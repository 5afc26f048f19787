#include "OndelControls/Disclosure.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickItem>
#include <QQuickWindow>

namespace OndelControls {

namespace {

Disclosure* disclosureOf(QObject* button) {
    return qobject_cast<Disclosure*>(qmlAttachedPropertiesObject<Disclosure>(button, false));
}

/// A button as assistive technology sees it, in place of the toolkit's own view of it.
class DisclosureButton final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessibleInterface* parent() const override {
        for (QQuickItem* above = item().parentItem(); above; above = above->parentItem())
            if (QAccessibleInterface* found = QAccessible::queryAccessibleInterface(above))
                return found;
        return QAccessible::queryAccessibleInterface(item().window());
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        switch (kind) {
        case QAccessible::Name:
            return object()->property("label").toString();
        case QAccessible::Description:
            return object()->property("detail").toString();
        default:
            return {};
        }
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QRect rect() const override {
        if (!item().window())
            return {};
        const QRectF inWindow = item().mapRectToScene(QRectF(QPointF(), item().size()));
        return {item().window()->mapToGlobal(inWindow.topLeft().toPoint()), inWindow.size().toSize()};
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        const QQuickWindow* window = item().window();
        state.focusable = item().activeFocusOnTab();
        state.focused = item().hasActiveFocus();
        state.disabled = !item().isEnabled();
        state.invisible = !item().isVisible() || !window || !window->isVisible();
        state.offscreen = window && !rect().intersects(QRect(window->mapToGlobal(QPoint()), window->size()));
        state.expandable = true;
        const Disclosure* disclosure = disclosureOf(object());
        state.expanded = disclosure && disclosure->isExpanded();
        state.collapsed = !state.expanded;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : QAccessibleObject::interface_cast(type);
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == setFocusAction())
            item().forceActiveFocus();
        else if (name == pressAction())
            QMetaObject::invokeMethod(object(), "activate");
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QQuickItem& item() const { return *static_cast<QQuickItem*>(object()); }
};

/// Is asked before the toolkit's factories, once for each class that the object is derived from.
QAccessibleInterface* viewOf(const QString&, QObject* object) {
    return qobject_cast<QQuickItem*>(object) && disclosureOf(object) ? new DisclosureButton(object) : nullptr;
}

} // namespace

Disclosure::Disclosure(QObject* button)
    : QObject(button) {
    [[maybe_unused]] static const bool isInstalled = [] {
        QAccessible::installFactory(viewOf);
        return true;
    }();
    // While assistive technology listens, the toolkit has made its own view already.
    if (QAccessible::isActive())
        if (QAccessibleInterface* made = QAccessible::queryAccessibleInterface(button))
            QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

void Disclosure::setExpanded(bool expanded) {
    if (expanded == m_isExpanded)
        return;
    m_isExpanded = expanded;
    Q_EMIT expandedChanged();
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent event(parent(), changed);
    QAccessible::updateAccessibility(&event);
}

} // namespace OndelControls
