#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>

namespace OndelAppSupport::views {

/// The maker's colours. The backdrop runs from `blue` on the leading edge to `navy` on the trailing one.
class OndelBrand : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QColor blue MEMBER blue CONSTANT)
    Q_PROPERTY(QColor navy MEMBER navy CONSTANT)
    Q_PROPERTY(QColor coral MEMBER coral CONSTANT)
    Q_PROPERTY(QColor coralButton MEMBER coralButton CONSTANT)
    Q_PROPERTY(QColor deepCoral MEMBER deepCoral CONSTANT)
public:
    using QObject::QObject;

    const QColor blue{48, 108, 152};
    const QColor navy{18, 64, 106};
    const QColor coral{252, 128, 88};
    const QColor coralButton{239, 108, 69};
    const QColor deepCoral{150, 44, 12}; ///< under white text, for high contrast
};

} // namespace OndelAppSupport::views
