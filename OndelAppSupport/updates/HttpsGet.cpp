#include "OndelAppSupport/updates/HttpsGet.h"

#include "OndelCore/platform/NameLookup.h"

#include <QEventLoop>
#include <QMetaObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <exception>
#include <memory>

namespace OndelAppSupport::updates {

namespace {

constexpr int mostRedirects = 5;
constexpr qint64 mostBuffered = 1 << 20; // bytes that wait to be taken
constexpr int ok = 200;

QNetworkRequest request(const QUrl& url, const Connection& connection) {
    QNetworkRequest request(url);
    if (connection.tls)
        request.setSslConfiguration(*connection.tls);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // What is not compressed on its way has the length that was stated, and cannot swell.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("Accept-Language", "*"); // the user's is nobody's business
    request.setHeader(QNetworkRequest::UserAgentHeader, connection.userAgent);
    return request;
}

HttpsAnswer head(const QNetworkReply& reply) {
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    return {reply.rawHeader("Content-Type"), length.isValid() ? length.toLongLong() : -1};
}

int status(const QNetworkReply& reply) {
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

} // namespace

void httpsGet(const QUrl& url, const Connection& connection, UpdateError::Cause failure,
              const ReceiveBytes& receive, const std::stop_token& stop) {
    if (url.scheme() != QLatin1String("https"))
        throw UpdateError(failure);
    if (!OndelCore::platform::awaitNameLookup(url.host(QUrl::FullyEncoded).toStdString(), stop))
        throw Stopped();
    QNetworkAccessManager network;
    QEventLoop loop;
    const std::unique_ptr<QNetworkReply> reply(network.get(request(url, connection)));
    reply->setReadBufferSize(mostBuffered);
    std::exception_ptr refusal;

    QTimer silence;
    silence.setSingleShot(true);
    silence.start(connection.patience);
    QObject::connect(&silence, &QTimer::timeout, reply.get(), &QNetworkReply::abort);
    const auto take = [&] {
        silence.start();
        if (refusal || status(*reply) != ok) // the words of a refusal or a redirect
            return;
        try {
            receive(head(*reply), reply->readAll());
        } catch (...) {
            refusal = std::current_exception();
            reply->abort();
        }
    };
    QObject::connect(reply.get(), &QNetworkReply::readyRead, reply.get(), take);
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    {
        const std::stop_callback end(stop, [&] {
            QMetaObject::invokeMethod(reply.get(), &QNetworkReply::abort, Qt::QueuedConnection);
        });
        if (!reply->isFinished())
            loop.exec();
    }
    if (stop.stop_requested())
        throw Stopped();
    if (refusal)
        std::rethrow_exception(refusal);
    if (reply->error() != QNetworkReply::NoError || status(*reply) != ok)
        throw UpdateError(failure);
    take();
    if (refusal)
        std::rethrow_exception(refusal);
}

SmallResource httpsGetSmall(const QUrl& url, const Connection& connection, UpdateError::Cause failure,
                            qint64 limit, const std::stop_token& stop) {
    SmallResource resource;
    const auto latest = std::chrono::steady_clock::now() + 2 * connection.patience;
    httpsGet(
        url, connection, failure,
        [&](const HttpsAnswer& answer, const QByteArray& bytes) {
            resource.answer = answer;
            resource.body += bytes;
            if (resource.body.size() > limit || std::chrono::steady_clock::now() > latest)
                throw UpdateError(failure);
        },
        stop);
    return resource;
}

} // namespace OndelAppSupport::updates
