#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSslServer>
#include <QUrl>

#include <map>

namespace test {

/// Answers HTTPS on loopback as a test tells it to, with a certificate that this process made for itself and
/// that nobody trusts but who takes `authorities`. Each answer closes its connection.
/// Threads: the one that made it, whose event loop must turn.
class HttpsServer {
public:
    struct Request {
        QByteArray method;
        QByteArray path;                      ///< with the query
        QMap<QByteArray, QByteArray> headers; ///< names in lower case
        QByteArray body = {};
    };

    struct Answer {
        enum class Ending {
            whole,   ///< all is sent, with its length
            cut,     ///< one byte more is announced than comes before the connection is dropped
            silence, ///< the same, but the connection stays open
            // Without end: until the client goes, or `muchBytes` were sent.
            endless,         ///< zeros follow, without a length
            endlessHead,     ///< headers
            endlessLine,     ///< one header
            endlessInterim,  ///< interim answers instead of this one
            endlessTrailers, ///< trailers, after a chunked body
        };
        static constexpr qint64 muchBytes = 64 << 20;
        int status = 200; ///< 0: not one byte is sent
        QByteArray body = {};
        QList<std::pair<QByteArray, QByteArray>> headers = {};
        Ending ending = Ending::whole;
    };

    enum class Certificate { forThisHost, forAnotherHost };

    /// Fails: throws std::runtime_error when the certificate cannot be made or nothing can listen.
    explicit HttpsServer(Certificate certificate = Certificate::forThisHost);

    QUrl url(const QString& path = QStringLiteral("/")) const;

    /// What is not scripted is answered with 404.
    void script(const QByteArray& path, Answer answer) { m_script[path] = std::move(answer); }

    const QList<Request>& requests() const { return m_requests; }
    int connections() const { return m_connections; }
    /// What clients' systems have taken off this one so far.
    qint64 sentBytes() const { return m_sentBytes; }

    /// The certificate of those who vouch for these servers, in PEM.
    static QByteArray authorities();

private:
    void read(QSslSocket* socket);
    void send(QSslSocket* socket, const Answer& answer);

    QSslServer m_server;
    std::map<QByteArray, Answer> m_script;
    QList<Request> m_requests;
    int m_connections = 0;
    qint64 m_sentBytes = 0;
};

} // namespace test
