#pragma once

#include <QStringView>

#include <compare>

namespace OndelAppSupport::updates {

/// How versions follow each other as people write them. Numbers count by their value, however long they are
/// (1.9 < 1.10); letters mark what comes before a release (2.0b2 < 2.0rc1 < 2.0); numbers that are left out
/// are zero (1.2 = 1.2.0). Signs only separate, and what follows a "+" orders nothing.
std::weak_ordering compareVersions(QStringView left, QStringView right);

} // namespace OndelAppSupport::updates
