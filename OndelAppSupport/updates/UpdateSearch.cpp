#include "OndelAppSupport/updates/UpdateSearch.h"

#include "OndelAppSupport/updates/PlainNotes.h"

namespace OndelAppSupport::updates {

namespace {

using Cause = UpdateError::Cause;

constexpr qint64 longestFeed = 1 << 20;  // bytes
constexpr qint64 longestNotes = 1 << 18; // bytes

QString loadNotes(const QUrl& link, const https::Connection& connection, const std::stop_token& stop) {
    try {
        const auto [contentType, body] =
            httpsGetSmall(link, connection, Cause::feedUnreachable, longestNotes, stop);
        const QString text = QString::fromUtf8(body);
        const bool isPlain = contentType.startsWith("text/plain") || contentType.startsWith("text/markdown");
        return showableNotes(isPlain ? text : plainNotes(text));
    } catch (const UpdateError&) {
        return {};
    }
}

} // namespace

std::optional<Offer> findUpdate(const Search& search, const std::stop_token& stop) {
    if (search.feed.scheme() != QLatin1String("https"))
        throw UpdateError(Cause::feedNotSecure);
    const auto feed =
        httpsGetSmall(search.feed, search.connection, Cause::feedUnreachable, longestFeed, stop);
    const auto offers = readAppcast(feed.body, stop);
    if (stop.stop_requested())
        throw https::Stopped();
    if (!offers)
        throw UpdateError(Cause::feedUnreadable);
    auto offer = newestOffer(*offers, search.platforms, search.systemVersion, search.currentVersion);
    if (!offer)
        return std::nullopt;
    if (!offer->isComplete())
        throw UpdateError(Cause::offerIncomplete);
    if (offer->notes.isEmpty() && !offer->notesLink.isEmpty())
        offer->notes = loadNotes(offer->notesLink, search.connection, stop);
    return offer;
}

} // namespace OndelAppSupport::updates
