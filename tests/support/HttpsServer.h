#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QSslConfiguration>
#include <QSslServer>
#include <QUrl>

#include <map>

namespace test {

/// Answers HTTPS on loopback as a test tells it to, with a certificate that this process made for itself and
/// that nobody trusts but who takes `trustingConfiguration`. Each answer closes its connection.
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
            endless, ///< zeros without end follow, without a length
        };
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

    /// Verifies as ever, but trusts the maker of these certificates too. A QNetworkAccessManager keeps for a
    /// host what its first request to it trusted: one that shall not trust must be another.
    static QSslConfiguration trustingConfiguration();

private:
    void read(QSslSocket* socket);
    void send(QSslSocket* socket, const Answer& answer);

    QSslServer m_server;
    std::map<QByteArray, Answer> m_script;
    QList<Request> m_requests;
    int m_connections = 0;
};

} // namespace test
