#pragma once

#include <QString>
#include <QUrl>

namespace OndelAppSupport {

/// Which product this is.
struct AppIdentity {
    QString name;      ///< in full
    QString shortName; ///< where there is little room
    QString reportID;  ///< the word by which the report service knows the product
    QUrl website;      ///< the product's page

    bool operator==(const AppIdentity&) const = default;

    static const AppIdentity& tarnwick();

    /// The running product's, assigned once at start: `AppIdentity::current() = AppIdentity::tarnwick();`
    /// Threads: main.
    static AppIdentity& current();
};

} // namespace OndelAppSupport
