#pragma once

#include "OndelAppSupport/updates/Appcast.h"
#include "OndelAppSupport/updates/HttpsGet.h"

#include <filesystem>
#include <functional>

namespace OndelAppSupport::updates {

/// Where packages go, and who may have signed them.
struct Destination {
    std::filesystem::path folder; ///< emptied and used for packages alone
    QByteArray publicKey;         ///< Ed25519, raw
};

/// Called as the load goes on. Threads: the loading one.
struct LoadProgress {
    std::function<void(qint64 bytes)> loaded;
    std::function<void()> verifying;
};

/// Loads the package of a complete offer. The file gets its name, which is the last of the address, only when
/// it is as long as the offer says and signed by the key; until then, and after any failure, there is none.
/// Threads: blocks, not for the main thread. Fails: throws UpdateError, or https::Stopped.
std::filesystem::path loadPackage(const Offer& offer, const Destination& destination,
                                  const https::Connection& connection, const LoadProgress& progress,
                                  const std::stop_token& stop);

} // namespace OndelAppSupport::updates
