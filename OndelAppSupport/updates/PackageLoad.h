#pragma once

#include "OndelAppSupport/updates/Appcast.h"
#include "OndelAppSupport/updates/HttpsGet.h"

#include <filesystem>
#include <functional>

namespace OndelAppSupport::updates {

/// The folder for packages and the key of their signatures.
struct Destination {
    std::filesystem::path folder; ///< used for packages alone; emptied first
    QByteArray publicKey;         ///< Ed25519, raw
};

/// Progress callbacks. Threads: the downloading one.
struct LoadProgress {
    std::function<void(qint64 bytes)> loaded;
    std::function<void()> verifying;
};

/// Downloads the package of a complete offer. The file gets its name, the last part of the address, after its
/// length and its signature have been verified; there is no such file before that or after a failure.
/// Threads: blocks, not for the main thread. Fails: throws UpdateError, or https::Stopped.
std::filesystem::path loadPackage(const Offer& offer, const Destination& destination,
                                  const https::Connection& connection, const LoadProgress& progress,
                                  const std::stop_token& stop);

} // namespace OndelAppSupport::updates
