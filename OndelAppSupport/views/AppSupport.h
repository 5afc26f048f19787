#pragma once

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/SupportNudges.h"

#include <QObject>
#include <QQmlEngine>
#include <QString>
#include <QUrl>

namespace OndelAppSupport::views {

/// The product's identity and system facts for QML, and functions that open pages and files.
class AppSupport : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(OndelAppSupport::AppIdentity app READ app CONSTANT)
    Q_PROPERTY(OndelAppSupport::SupportNudges* nudges READ nudges CONSTANT)
    Q_PROPERTY(QString appVersion READ appVersion CONSTANT)
    Q_PROPERTY(QString osVersion READ osVersion CONSTANT)
    Q_PROPERTY(QString hardwareModel READ hardwareModel CONSTANT)
    /// The host of the maker's site, without "www.".
    Q_PROPERTY(QString siteName READ siteName CONSTANT)
    /// The web form for reports.
    Q_PROPERTY(QUrl reportPage READ reportPage CONSTANT)
    Q_PROPERTY(QUrl supportPage READ supportPage CONSTANT)
    /// The file of third-party notices; empty if this installation lacks it.
    Q_PROPERTY(QUrl thirdPartyNotices READ notices CONSTANT)
    Q_PROPERTY(bool hasNotices READ hasNotices CONSTANT)
public:
    using QObject::QObject;

    static AppIdentity app() { return AppIdentity::current(); }
    static SupportNudges* nudges();
    static QString appVersion();
    static QString osVersion();
    static QString hardwareModel();
    static QString siteName();
    static QUrl reportPage();
    static QUrl supportPage() { return SupportNudges::supportURL(); }
    static QUrl notices();
    static bool hasNotices() { return !notices().isEmpty(); }

    /// The address of a page without scheme and "www.".
    Q_INVOKABLE static QString shown(const QUrl& page);

    /// Both open the desktop's program for it and return at once.
    Q_INVOKABLE static void openPage(const QUrl& page);
    Q_INVOKABLE static void openFile(const QString& path);
};

} // namespace OndelAppSupport::views
