#include "OndelAppSupport/AppIdentity.h"

#include "OndelAppSupport/InformationDictionary.h"

namespace OndelAppSupport {

namespace {

QUrl secureAddress(const QString& hostKey, const QString& path) {
    QUrl address;
    address.setScheme(QStringLiteral("https"));
    address.setHost(InformationDictionary::main().string(hostKey).value_or(QString()));
    address.setPath(path);
    return address;
}

} // namespace

QUrl makerSitePage(const QString& path) { return secureAddress(QStringLiteral("OndelSiteHost"), path); }

QUrl makerServiceAddress(const QString& path) {
    return secureAddress(QStringLiteral("OndelServiceHost"), path);
}

const AppIdentity& AppIdentity::tarnwick() {
    static const AppIdentity identity{.name = QStringLiteral("Ondel Tarnwick"),
                                      .shortName = QStringLiteral("Tarnwick"),
                                      .reportID = QStringLiteral("tarnwick"),
                                      .website = makerSitePage(QStringLiteral("/tarnwick"))};
    return identity;
}

AppIdentity& AppIdentity::current() {
    static AppIdentity identity = tarnwick();
    return identity;
}

} // namespace OndelAppSupport
