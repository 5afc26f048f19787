#pragma once

#include "OndelAppSupport/https/HttpsExchange.h"
#include "OndelAppSupport/updates/UpdateError.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// Takes a part of the body. Exceptions end the transfer and reach the caller.
using ReceiveBytes = std::function<void(const https::Head&, QByteArrayView bytes)>;

/// Downloads a resource. Up to five redirects are followed: packages are commonly served by a content
/// network, the request holds no secrets, and the answer is parsed as a feed or verified by its signature.
/// Threads: as https::exchange. Fails: throws UpdateError(`failure`) for anything but a complete answer with
/// status 200, or https::Stopped.
void httpsGet(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
              const ReceiveBytes& receive, const std::stop_token& stop);

/// A small resource in memory. Units: bytes. Fails: as above, also for more than `limit` bytes or after twice
/// the connection's patience.
struct SmallResource {
    QByteArray contentType; ///< as sent: "text/html; charset=utf-8"
    QByteArray body;
};
SmallResource httpsGetSmall(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
                            qint64 limit, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
