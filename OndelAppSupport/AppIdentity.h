#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

namespace OndelAppSupport {

/// Which product this is.
struct AppIdentity {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString shortName MEMBER shortName)
    Q_PROPERTY(QString reportID MEMBER reportID)
    Q_PROPERTY(QUrl website MEMBER website)
public:
    QString name;      ///< in full
    QString shortName; ///< where there is little room
    QString reportID;  ///< the product's name in requests to the report service
    QUrl website;      ///< the product's page

    bool operator==(const AppIdentity&) const = default;

    static const AppIdentity& tarnwick();

    /// Of the running program, assigned once at start: `AppIdentity::current() = AppIdentity::tarnwick();`
    /// Threads: main.
    static AppIdentity& current();
};

/// A page of the maker's site. Its host is a setting of the build. `path` begins with a slash.
QUrl makerSitePage(const QString& path);

/// An address of the maker's report service.
QUrl makerServiceAddress(const QString& path);

} // namespace OndelAppSupport
