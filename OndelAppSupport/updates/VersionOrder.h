#pragma once

#include <QStringView>

#include <compare>

namespace OndelAppSupport::updates {

/// Orders version strings. Numbers of any length compare by value (1.9 < 1.10); letters mark a pre-release
/// (2.0b2 < 2.0rc1 < 2.0); missing numbers are zero (1.2 = 1.2.0); a leading "v" and what follows a "+" are
/// ignored; other characters separate. (QVersionNumber ignores all that follows the first letter, and numbers
/// above 2^31, such as 202603011200.)
std::weak_ordering compareVersions(QStringView left, QStringView right);

} // namespace OndelAppSupport::updates
