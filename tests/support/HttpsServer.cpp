#include "support/HttpsServer.h"

#include "support/TemporaryFolder.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

#include <algorithm>
#include <optional>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace test {

namespace {

/// An authority and its certificates, made once in a process with the command that every system with TLS has.
class Authority {
public:
    static const Authority& shared() {
        static const Authority authority;
        return authority;
    }

    QSslConfiguration serverConfiguration(HttpsServer::Certificate which) const {
        const QString name = which == HttpsServer::Certificate::forThisHost ? u"here"_s : u"elsewhere"_s;
        QFile key(path(name + u".key"_s));
        if (!key.open(QIODevice::ReadOnly))
            throw std::runtime_error("no key was made");
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(certificate(name));
        configuration.setPrivateKey(QSslKey(&key, QSsl::Ec));
        return configuration;
    }

    QSslCertificate certificate(const QString& name) const {
        return QSslCertificate::fromPath(path(name + u".pem"_s)).value(0);
    }

private:
    Authority() {
        make(u"authority"_s, {u"-subj"_s, u"/CN=Test Authority"_s});
        sign(u"here"_s, u"DNS:localhost,IP:127.0.0.1"_s);
        sign(u"elsewhere"_s, u"DNS:elsewhere.example"_s);
    }

    QString path(const QString& name) const {
        return QString::fromStdString((m_folder.path() / name.toStdString()).string());
    }

    void sign(const QString& name, const QString& hosts) {
        make(name, {u"-CA"_s, path(u"authority.pem"_s), u"-CAkey"_s, path(u"authority.key"_s), u"-subj"_s,
                    u"/CN=test"_s, u"-addext"_s, u"subjectAltName="_s + hosts, u"-addext"_s,
                    u"basicConstraints=critical,CA:FALSE"_s});
    }

    void make(const QString& name, const QStringList& how) {
        QProcess openssl;
        const QString request = u"req -x509 -noenc -days 2 -newkey ec -pkeyopt ec_paramgen_curve:P-256"_s;
        openssl.start(u"openssl"_s, request.split(u' ') +
                                        QStringList{u"-keyout"_s, path(name + u".key"_s), u"-out"_s,
                                                    path(name + u".pem"_s)} +
                                        how);
        if (!openssl.waitForFinished(-1) || openssl.exitCode() != 0)
            throw std::runtime_error("openssl: " + openssl.readAllStandardError().toStdString());
    }

    TemporaryFolder m_folder;
};

/// Absent while not all of it has come.
std::optional<HttpsServer::Request> parse(const QByteArray& bytes) {
    const auto end = bytes.indexOf("\r\n\r\n");
    if (end < 0)
        return std::nullopt;
    const QList<QByteArray> lines = bytes.left(end).split('\n');
    const QList<QByteArray> words = lines.first().split(' ');
    HttpsServer::Request request{words.value(0), words.value(1), {}, bytes.mid(end + 4)};
    for (const QByteArray& line : lines.mid(1))
        request.headers[line.left(line.indexOf(':')).toLower()] = line.mid(line.indexOf(':') + 1).trimmed();
    if (request.body.size() < request.headers.value("content-length").toLongLong())
        return std::nullopt;
    return request;
}

} // namespace

HttpsServer::HttpsServer(Certificate certificate) {
    m_server.setSslConfiguration(Authority::shared().serverConfiguration(certificate));
    if (!m_server.listen(QHostAddress::LocalHost))
        throw std::runtime_error(m_server.errorString().toStdString());
    QObject::connect(&m_server, &QTcpServer::pendingConnectionAvailable, &m_server, [this] {
        while (auto* socket = qobject_cast<QSslSocket*>(m_server.nextPendingConnection())) {
            ++m_connections;
            QObject::connect(socket, &QSslSocket::encryptedBytesWritten, socket,
                             [this](qint64 bytes) { m_sentBytes += bytes; });
            QObject::connect(socket, &QSslSocket::readyRead, socket, [this, socket] { read(socket); });
            QObject::connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
}

QUrl HttpsServer::url(const QString& path) const {
    return QUrl(u"https://127.0.0.1:%1%2"_s.arg(m_server.serverPort()).arg(path));
}

QByteArray HttpsServer::authorities() { return Authority::shared().certificate(u"authority"_s).toPem(); }

void HttpsServer::read(QSslSocket* socket) {
    const QByteArray bytes = socket->peek(socket->bytesAvailable());
    const auto request = parse(bytes);
    if (!request)
        return;
    socket->readAll();
    m_requests.append(*request);
    const auto scripted = m_script.find(request->path);
    send(socket, scripted == m_script.end() ? Answer{404, {}, {}} : scripted->second);
}

namespace {

QByteArray headOf(const HttpsServer::Answer& answer) {
    using enum HttpsServer::Answer::Ending;
    if (answer.status == 0 || answer.ending == endlessInterim)
        return {};
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " Scripted\r\nConnection: close\r\n";
    for (const auto& [name, value] : answer.headers)
        head += name + ": " + value + "\r\n";
    switch (answer.ending) {
    case endless:
        return head + "\r\n" + answer.body;
    case endlessHead:
        return head;
    case endlessLine:
        return head + "X-Filler: ";
    case endlessTrailers:
        return head + "Transfer-Encoding: chunked\r\n\r\n" + QByteArray::number(answer.body.size(), 16) +
               "\r\n" + answer.body + "\r\n0\r\n";
    default:
        const auto missing = answer.ending == whole ? 0 : 1;
        return head + "Content-Length: " + QByteArray::number(answer.body.size() + missing) + "\r\n\r\n" +
               answer.body;
    }
}

/// What follows again and again; nothing for an answer that ends.
QByteArray repeatedIn(HttpsServer::Answer::Ending ending) {
    using enum HttpsServer::Answer::Ending;
    switch (ending) {
    case endless:
        return QByteArray(1 << 16, '\0');
    case endlessHead:
    case endlessTrailers:
        return QByteArray("X-Filler: filler\r\n").repeated(1 << 12);
    case endlessLine:
        return QByteArray(1 << 16, 'x');
    case endlessInterim:
        return QByteArray("HTTP/1.1 103 Early Hints\r\nLink: x\r\n\r\n").repeated(1 << 11);
    default:
        return {};
    }
}

} // namespace

void HttpsServer::send(QSslSocket* socket, const Answer& answer) {
    socket->write(headOf(answer));
    const QByteArray repeated = repeatedIn(answer.ending);
    if (!repeated.isEmpty()) {
        const auto feed = [this, socket, repeated] {
            if (m_sentBytes > Answer::muchBytes)
                socket->disconnectFromHost();
            else if (socket->bytesToWrite() + socket->encryptedBytesToWrite() < (1 << 18))
                socket->write(repeated);
        };
        QObject::connect(socket, &QSslSocket::encryptedBytesWritten, socket, feed);
        feed();
    } else if (answer.ending != Answer::Ending::silence) {
        socket->disconnectFromHost(); // after what is still to be written
    }
}

} // namespace test
