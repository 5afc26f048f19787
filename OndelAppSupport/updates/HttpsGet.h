#pragma once

#include "OndelAppSupport/updates/UpdateError.h"

#include <QByteArray>
#include <QSslConfiguration>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace OndelAppSupport::updates {

/// How servers are spoken to.
struct Connection {
    std::optional<QSslConfiguration> tls;                          ///< absent: the system's
    std::chrono::milliseconds patience = std::chrono::seconds(30); ///< how long a server may say nothing
    QByteArray userAgent = "Ondel";
};

struct HttpsAnswer {
    QByteArray contentType; ///< as sent: "text/html; charset=utf-8"
    qint64 length = -1;     ///< bytes of the body as announced; -1: not announced
};

/// Takes what has come. What it throws ends the transfer and goes on to the caller.
using ReceiveBytes = std::function<void(const HttpsAnswer&, const QByteArray& bytes)>;

/// Thrown where a stop was requested.
struct Stopped {};

/// Loads a resource with verified certificates only, as it is on the server, without cookies or an account.
/// Redirects are followed, five at most and only to https:// again: packages are commonly handed on to the
/// servers of a content network, nothing secret is sent that could reach a stranger, and what comes is either
/// read as a feed or proved by its signature.
///
/// Threads: blocks the calling one, which must not be the main thread: looking up names and proxies may take
/// its time. Fails: throws UpdateError(`failure`) for whatever is no whole answer with status 200, Stopped
/// when `stop` asks for it.
void httpsGet(const QUrl& url, const Connection& connection, UpdateError::Cause failure,
              const ReceiveBytes& receive, const std::stop_token& stop);

/// A small resource as a whole. Units: bytes. Fails: as above, also when there is more than `limit`, or when
/// it takes longer than twice the connection's patience.
struct SmallResource {
    HttpsAnswer answer;
    QByteArray body;
};
SmallResource httpsGetSmall(const QUrl& url, const Connection& connection, UpdateError::Cause failure,
                            qint64 limit, const std::stop_token& stop);

} // namespace OndelAppSupport::updates
