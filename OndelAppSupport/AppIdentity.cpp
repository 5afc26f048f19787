#include "OndelAppSupport/AppIdentity.h"

#include "OndelAppSupport/MakerSite.h"

namespace OndelAppSupport {

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
