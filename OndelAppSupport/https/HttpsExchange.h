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

/// What is asked of a server. Neither cookies nor an account go with it.
struct Request {
    QUrl url;
    QList<QByteArray> headers = {};                ///< "Name: value"; "Name;" sends an empty value
    std::optional<QByteArray> body = std::nullopt; ///< makes it a POST
    int redirects = 0;                             ///< how many are followed, to https:// only
};

/// How servers are spoken to.
struct Connection {
    QByteArray userAgent = "Ondel";
    std::optional<QByteArray> authorities = std::nullopt; ///< certificates in PEM; absent: the system's
    std::chrono::milliseconds patience = std::chrono::seconds(30); ///< how long a server may say nothing
    /// How long everything may take; absent: the body may take any time, what comes before it twice the
    /// patience.
    std::optional<std::chrono::milliseconds> limit = std::nullopt;
};

/// What stands before an answer's body.
struct Head {
    int status = 0;
    QByteArray contentType;             ///< as sent: "text/html; charset=utf-8"
    std::optional<qint64> length;       ///< bytes of the body as announced
    std::optional<QByteArray> location; ///< of a redirect
};

/// Takes an answer. Both end the exchange, which then has succeeded, with false; what they throw ends it too
/// and goes on to the caller.
struct Receiver {
    std::function<bool(const Head&)> head = [](const Head&) { return true; };
    std::function<bool(QByteArrayView bytes)> body = [](QByteArrayView) { return true; };
};

/// No whole answer came. what(): the system's words for it.
class TransportError : public std::runtime_error {
public:
    enum class Kind {
        failed,
        notHttps,    ///< the address is no https:// one; nobody was asked
        notHttp,     ///< what answered does not speak HTTP
        tooLongHead, ///< more than `longestHead`
    };

    TransportError(Kind kind, const char* words)
        : std::runtime_error(words)
        , m_kind(kind) {}
    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};

/// Thrown where a stop was requested.
struct Stopped {};

/// All that stands around the bodies of an exchange: status lines, headers, trailers, interim answers,
/// redirects, a proxy's own words. Units: bytes.
constexpr std::size_t longestHead = 64 << 10;

/// One exchange over verified TLS, sent once, through the proxies that the system has settings for. Holds no
/// more of an answer in memory than `longestHead` and what the receiver keeps.
/// Threads: blocks, not for the main thread. The look-up of proxies cannot be broken off and may hang.
/// Fails: throws TransportError; Stopped when `stop` asks for it; what the receiver throws.
void exchange(const Request& request, const Connection& connection, const Receiver& receiver,
              const std::stop_token& stop);

} // namespace OndelAppSupport::https
