#include "OndelControls/OnDemand.h"

#include <QQmlContext>
#include <QQmlInfo>

namespace OndelControls {

OnDemand::OnDemand(QQuickItem* parent)
    : QQuickItem(parent) {
    setVisible(false); // layouts leave out what is hidden
}

void OnDemand::setActive(bool active) {
    if (active == m_active)
        return;
    m_active = active;
    follow();
    Q_EMIT activeChanged();
}

void OnDemand::componentComplete() {
    QQuickItem::componentComplete();
    follow();
}

void OnDemand::follow() {
    if (!isComponentComplete() || m_active == !m_object.isNull() || (!m_component && m_file.isEmpty()))
        return;
    if (m_active)
        make();
    else
        remove();
    Q_EMIT objectChanged();
}

void OnDemand::make() {
    if (!m_component)
        m_component = new QQmlComponent(qmlEngine(this), qmlContext(this)->resolvedUrl(m_file), this);
    QQmlContext* context = m_component->creationContext();
    m_object = m_component->beginCreate(context ? context : qmlContext(this));
    if (!m_object) {
        qmlWarning(this, m_component->errors());
        return;
    }
    m_component->setInitialProperties(m_object, m_given);
    m_object->setParent(this);
    QQmlEngine::setObjectOwnership(m_object, QQmlEngine::CppOwnership);
    if (auto* item = qobject_cast<QQuickItem*>(m_object)) {
        item->setParentItem(parentItem());
        item->stackAfter(this);
    }
    m_component->completeCreate();
}

void OnDemand::remove() {
    if (auto* item = qobject_cast<QQuickItem*>(m_object))
        item->setParentItem(nullptr);
    m_object->deleteLater();
    m_object = nullptr;
}

} // namespace OndelControls
