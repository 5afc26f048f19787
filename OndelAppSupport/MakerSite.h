#pragma once

#include <QString>
#include <QUrl>

namespace OndelAppSupport {

/// A page of the maker's site, whose host is a setting of the build. `path` begins with a slash.
QUrl makerSitePage(const QString& path);

/// The same for the maker's report service.
QUrl makerServiceAddress(const QString& path);

} // namespace OndelAppSupport
