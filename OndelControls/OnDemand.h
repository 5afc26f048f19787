#pragma once

#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

namespace OndelControls {

/// Makes one object of its component while it is active. An item stands beside it in its parent, as a
/// Repeater's items do, so that positioners and layouts place it. Unlike the toolkit's Loader it takes
/// components that are bound to their file, which Qt 6.4 refuses there, and it is no focus scope.
///
/// Of a component, or of a file: that is compiled when the object is first made, and not together with the
/// file that names it.
///
/// Owner: the object, which loses its parent when this becomes inactive and is deleted soon afterwards. Its
/// bindings must not rely on a parent.
class OnDemand : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_CLASSINFO("DefaultProperty", "component")

    Q_PROPERTY(bool active READ isActive WRITE setActive NOTIFY activeChanged)
    /// Is set once.
    Q_PROPERTY(QQmlComponent* component MEMBER m_component)
    /// A file beside the one that names it. Is set once.
    Q_PROPERTY(QString file MEMBER m_file)
    /// The first values of properties of what is made of the file.
    Q_PROPERTY(QVariantMap given MEMBER m_given)
    Q_PROPERTY(QObject* object READ object NOTIFY objectChanged)

public:
    explicit OnDemand(QQuickItem* parent = nullptr);

    bool isActive() const { return m_active; }
    void setActive(bool active);
    Q_SIGNAL void activeChanged();

    QObject* object() const { return m_object; }
    Q_SIGNAL void objectChanged();

protected:
    void componentComplete() override;

private:
    void follow();
    void make();
    void remove();

    bool m_active = false;
    QPointer<QQmlComponent> m_component;
    QString m_file;
    QVariantMap m_given;
    QPointer<QObject> m_object;
};

} // namespace OndelControls
