#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <stop_token>

namespace OndelAppSupport::https {

/// A request, sent without cookies and credentials.
struct Request {
    QUrl url;
    QList<QByteArray> headers = {};                ///< "Name: value"; "Name;" sends an empty value
    std::optional<QByteArray> body = std::nullopt; ///< makes it a POST
    int redirects = 0;                             ///< how many are followed, to https:// only
};

/// Settings that requests share.
struct Connection {
    QByteArray userAgent = "Ondel";
    std::optional<QByteArray> authorities = std::nullopt; ///< certificates in PEM; absent: the system's
    std::chrono::milliseconds patience = std::chrono::seconds(30); ///< how long a server may be silent
    /// For the whole exchange. Absent: any time for the body, and twice the patience for what precedes it.
    std::optional<std::chrono::milliseconds> limit = std::nullopt;
};

/// The head of an answer.
struct Head {
    int status = 0;
    QByteArray contentType;             ///< as sent: "text/html; charset=utf-8"
    std::optional<qint64> length;       ///< bytes of the body as announced
    std::optional<QByteArray> location; ///< of a redirect
};

/// Takes an answer. Either function ends the exchange successfully by returning false; exceptions end it and
/// reach the caller.
struct Receiver {
    std::function<bool(const Head&)> head = [](const Head&) { return true; };
    std::function<bool(QByteArrayView bytes)> body = [](QByteArrayView) { return true; };
};

/// No complete answer was received. what(): the system's error text.
class TransportError : public std::runtime_error {
public:
    enum class Kind {
        failed,
        notHttps,    ///< the address is not https://; no server was contacted
        notHttp,     ///< the server does not speak HTTP
        tooLongHead, ///< more than `longestHead`
    };

    TransportError(Kind kind, const char* text)
        : std::runtime_error(text)
        , m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/// Thrown when a stop was requested.
struct Stopped {};

/// Limit for everything but bodies in an exchange: status lines, headers, trailers, interim answers,
/// redirects, a proxy's answers. Units: bytes.
constexpr std::size_t longestHead = 64 << 10;

/// One exchange over verified TLS, sent once, through the system's proxies. Holds no more of an answer in
/// memory than `longestHead` and what the receiver keeps.
/// Threads: blocks, not for the main thread. The look-up of proxies may hang and cannot be interrupted.
/// Fails: throws TransportError, Stopped, or what the receiver throws.
void exchange(const Request& request, const Connection& connection, const Receiver& receiver,
              const std::stop_token& stop);

} // namespace OndelAppSupport::https
