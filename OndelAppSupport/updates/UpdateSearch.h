#pragma once

#include "OndelAppSupport/updates/Appcast.h"
#include "OndelAppSupport/updates/HttpsGet.h"

namespace OndelAppSupport::updates {

/// What is looked for, and where.
struct Search {
    QUrl feed;
    QString currentVersion;
    QStringList platforms;
    QString systemVersion;
    https::Connection connection;
};

/// Asks the feed. Absent: nothing newer for this system. Notes that stand elsewhere are loaded too; where
/// that fails the offer has none. Threads: blocks, not for the main thread. Fails: throws UpdateError, or
/// https::Stopped.
std::optional<Offer> findUpdate(const Search& search, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
