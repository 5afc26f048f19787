#include "OndelAppSupport/updates/PlainNotes.h"
#include "OndelAppSupport/updates/VersionOrder.h"
#include "fuzz/Fuzz.h"

using namespace OndelAppSupport::updates;

void fuzz::read(Bytes bytes) {
    const QString text = textOf(bytes);
    const QString shown = showableNotes(plainNotes(text));
    require(showableNotes(shown) == shown);
    const auto half = text.size() / 2;
    const QStringView left = QStringView(text).left(half);
    const QStringView right = QStringView(text).mid(half);
    require(std::is_eq(compareVersions(left, right)) == std::is_eq(compareVersions(right, left)));
    require(std::is_lt(compareVersions(left, right)) == std::is_gt(compareVersions(right, left)));
}
