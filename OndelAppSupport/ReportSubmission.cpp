#include "OndelAppSupport/ReportSubmission.h"

#include "OndelAppSupport/UnrepeatableBody.h"
#include "OndelCore/platform/ErrorText.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <QTimer>

#include <cerrno>
#include <exception>

namespace OndelAppSupport {

namespace {

constexpr qint64 longestAnswer = 1 << 20; // bytes
constexpr int filed = 200;

QNetworkRequest request(const BugReporter::Service& service, qsizetype bodySize) {
    QNetworkRequest request(service.endpoint);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // one request has nothing to gain
    request.setSslConfiguration(service.encryption);
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setHeader(QNetworkRequest::ContentLengthHeader, bodySize);
    // What is not compressed cannot swell.
    request.setRawHeader("Accept-Encoding", "identity");
    // A null value would take the header away, an empty one is sent.
    request.setRawHeader("X-Ondel-App-Secret", service.secret.isEmpty() ? "" : service.secret.toUtf8());
    return request;
}

/// The service's own reason, if it gave one.
std::optional<QString> reason(const QByteArray& answer) {
    const QJsonValue error = QJsonDocument::fromJson(answer).object().value(QStringLiteral("error"));
    return error.isString() ? std::optional(error.toString()) : std::nullopt;
}

ReportError failure(int error) {
    return ReportError(ReportError::Transport{QString::fromStdString(OndelCore::platform::errorText(error))});
}

/// Whether the exchange itself failed. The other errors only repeat what the status says.
bool isTransportError(QNetworkReply::NetworkError error) {
    return error != QNetworkReply::NoError && error <= QNetworkReply::UnknownProxyError;
}

} // namespace

QFuture<void> ReportSubmission::start(const QVariantMap& payload, const BugReporter::Service& service) {
    auto* submission = new ReportSubmission(payload, service); // it owns itself
    return submission->m_promise.future();
}

ReportSubmission::ReportSubmission(const QVariantMap& payload, const BugReporter::Service& service)
    : QObject(QCoreApplication::instance()) {
    m_promise.start();
    m_watcher.setFuture(m_promise.future());
    connect(&m_watcher, &QFutureWatcher<void>::canceled, this, [this] { end(); });
    // The network library cannot be ended by the application's own end.
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { delete this; });
    if (service.endpoint.scheme() != QLatin1String("https")) {
        end(ReportError(ReportError::Network()));
        return;
    }
    const QByteArray body =
        QJsonDocument(QJsonObject::fromVariantMap(payload)).toJson(QJsonDocument::Compact);
    m_reply = m_network.post(request(service, body.size()), new UnrepeatableBody(body, this));
    m_reply->setReadBufferSize(longestAnswer);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (status() == filed) // whatever else it has to say
            end();
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &ReportSubmission::readMore);
    connect(m_reply, &QNetworkReply::finished, this, &ReportSubmission::judge);
    QTimer::singleShot(service.limit, this, [this] { end(failure(ETIMEDOUT)); });
}

int ReportSubmission::status() const {
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void ReportSubmission::readMore() {
    if (m_ended)
        return;
    m_answer += m_reply->read(longestAnswer - m_answer.size());
    if (m_answer.size() >= longestAnswer)
        judge();
}

void ReportSubmission::judge() {
    if (m_ended)
        return;
    if (isTransportError(m_reply->error())) {
        end(ReportError(ReportError::Transport{m_reply->errorString()}));
    } else if (status() == 0 && m_reply->error() == QNetworkReply::ContentReSendError) {
        end(failure(ECONNRESET)); // it would have been sent again
    } else if (status() == 0) {
        end(ReportError(ReportError::Network()));
    } else if (status() == filed) {
        end();
    } else {
        m_answer += m_reply->read(longestAnswer - m_answer.size());
        const QString rejected =
            QCoreApplication::translate("BugReporter", "The server rejected the report (%1).");
        end(ReportError(ReportError::Server{reason(m_answer).value_or(rejected.arg(status()))}));
    }
}

void ReportSubmission::end(const std::optional<ReportError>& error) {
    if (m_ended)
        return;
    m_ended = true;
    if (error)
        m_promise.setException(std::make_exception_ptr(*error));
    m_promise.finish();
    deleteLater(); // and with it what is left of the exchange
}

} // namespace OndelAppSupport
