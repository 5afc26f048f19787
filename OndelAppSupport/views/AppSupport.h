#pragma once

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/SupportNudges.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

namespace OndelAppSupport::views {

/// What the library knows of the running product, for QML, and the way from it to the desktop.
class AppSupport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(OndelAppSupport::AppIdentity app READ app CONSTANT)
    Q_PROPERTY(OndelAppSupport::SupportNudges* nudges READ nudges CONSTANT)
    Q_PROPERTY(QString appVersion READ appVersion CONSTANT)
    Q_PROPERTY(QString osVersion READ osVersion CONSTANT)
    Q_PROPERTY(QString hardwareModel READ hardwareModel CONSTANT)
    /// The web form for reports.
    Q_PROPERTY(QUrl reportPage READ reportPage CONSTANT)
    Q_PROPERTY(QUrl supportPage READ supportPage CONSTANT)
    /// Empty when this installation has none.
    Q_PROPERTY(QUrl thirdPartyNotices READ notices CONSTANT)
public:
    using QObject::QObject;

    static AppIdentity app() { return AppIdentity::current(); }
    static SupportNudges* nudges();
    static QString appVersion();
    static QString osVersion();
    static QString hardwareModel();
    static QUrl reportPage();
    static QUrl supportPage() { return SupportNudges::supportURL(); }
    static QUrl notices();

    /// Both open with whatever the desktop has for it, and return at once.
    Q_INVOKABLE static void openPage(const QUrl& page);
    Q_INVOKABLE static void openFile(const QString& path);
};

} // namespace OndelAppSupport::views
