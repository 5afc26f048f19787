#pragma once

#include <QObject>
#include <QQmlEngine>

namespace OndelControls {

/// Tells assistive technology that a button expands and collapses something: `Disclosure.expanded: isOpen`.
/// The toolkit's attached properties have no such state. The button's label and description are read from its
/// properties `label` and `detail`, and a press calls its function `activate`.
class Disclosure : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Disclosure is only available as an attached property")
    QML_ATTACHED(OndelControls::Disclosure)

    Q_PROPERTY(bool expanded READ isExpanded WRITE setExpanded NOTIFY expandedChanged)

public:
    explicit Disclosure(QObject* button);
    static Disclosure* qmlAttachedProperties(QObject* button) { return new Disclosure(button); }

    bool isExpanded() const { return m_isExpanded; }
    void setExpanded(bool expanded);
    Q_SIGNAL void expandedChanged();

private:
    bool m_isExpanded = false;
};

} // namespace OndelControls
