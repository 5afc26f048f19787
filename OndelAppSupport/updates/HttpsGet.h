#pragma once

#include "OndelAppSupport/https/HttpsExchange.h"
#include "OndelAppSupport/updates/UpdateError.h"

#include <QByteArray>
#include <QUrl>

#include <functional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// Takes what has come. What it throws ends the transfer and goes on to the caller.
using ReceiveBytes = std::function<void(const https::Head&, QByteArrayView bytes)>;

/// Loads a resource as it is on the server. Redirects are followed, five at most: packages are commonly
/// handed on to the servers of a content network, nothing secret is sent that could reach a stranger, and
/// what comes is either read as a feed or proved by its signature. Threads: as https::exchange. Fails: throws
/// UpdateError(`failure`) for whatever is no whole answer with status 200, https::Stopped when `stop` asks
/// for it.
void httpsGet(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
              const ReceiveBytes& receive, const std::stop_token& stop);

/// A small resource as a whole. Units: bytes. Fails: as above, also when there is more than `limit`, or when
/// it takes longer than twice the connection's patience.
struct SmallResource {
    QByteArray contentType; ///< as sent: "text/html; charset=utf-8"
    QByteArray body;
};
SmallResource httpsGetSmall(const QUrl& url, const https::Connection& connection, UpdateError::Cause failure,
                            qint64 limit, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
