#include "OndelAppSupport/updates/Appcast.h"

#include "fuzz/Fuzz.h"

using namespace OndelAppSupport::updates;

void fuzz::read(Bytes bytes) {
    const auto offers = readAppcast(viewOf(bytes).toByteArray());
    if (!offers)
        return;
    const auto newest =
        newestOffer(*offers, {QStringLiteral("linux")}, QStringLiteral("6.1"), QStringLiteral("10"));
    require(!newest || newest->platform.compare(QLatin1String("linux"), Qt::CaseInsensitive) == 0);
}
