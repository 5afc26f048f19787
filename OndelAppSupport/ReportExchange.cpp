#include "OndelAppSupport/ReportExchange.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/UnrepeatableBody.h"
#include "OndelCore/platform/NameLookup.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <utility>

namespace OndelAppSupport {

namespace {

constexpr qint64 longestAnswer = 1 << 20; // bytes
constexpr int filed = 200;

QNetworkRequest request(const BugReporter::Service& service, qsizetype bodySize) {
    QNetworkRequest request(service.endpoint);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false); // one request has nothing to gain
    request.setSslConfiguration(service.encryption);
    request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setHeader(QNetworkRequest::ContentLengthHeader, bodySize);
    request.setHeader(QNetworkRequest::UserAgentHeader, AppIdentity::current().name);
    request.setRawHeader("Accept-Language", "*");        // the user's is in the diagnostics or nowhere
    request.setRawHeader("Accept-Encoding", "identity"); // what is not compressed cannot swell
    // A null value would take the header away, an empty one is sent.
    request.setRawHeader("X-Ondel-App-Secret", service.secret.isEmpty() ? "" : service.secret.toUtf8());
    return request;
}

/// The service's own reason, if it gave one.
std::optional<QString> reason(const QByteArray& answer) {
    const QJsonValue error = QJsonDocument::fromJson(answer).object().value(QStringLiteral("error"));
    return error.isString() ? std::optional(error.toString()) : std::nullopt;
}

/// Whether the exchange itself failed. The other errors only repeat what the status says.
bool isTransportError(QNetworkReply::NetworkError error) {
    return error != QNetworkReply::NoError && error <= QNetworkReply::UnknownProxyError;
}

} // namespace

ReportExchange::ReportExchange(QByteArray body, const BugReporter::Service& service, std::stop_token stop)
    : m_body(std::move(body))
    , m_request(request(service, m_body.size()))
    , m_stop(std::move(stop)) {}

void ReportExchange::begin() {
    if (m_request.url().scheme() != QLatin1String("https")) {
        end(ReportError(ReportError::Network()));
        return;
    }
    const QString host = m_request.url().host(QUrl::FullyEncoded);
    if (!OndelCore::platform::awaitNameLookup(host.toStdString(), m_stop))
        return;
    auto* network = new QNetworkAccessManager(this);
    m_reply = network->post(m_request, new UnrepeatableBody(m_body, this));
    m_reply->setReadBufferSize(longestAnswer);
    connect(m_reply, &QNetworkReply::metaDataChanged, this, [this] {
        if (status() == filed) // whatever else it has to say
            end();
    });
    connect(m_reply, &QNetworkReply::readyRead, this, &ReportExchange::readMore);
    connect(m_reply, &QNetworkReply::finished, this, &ReportExchange::judge);
}

int ReportExchange::status() const {
    return m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

void ReportExchange::readMore() {
    if (m_ended)
        return;
    m_answer += m_reply->read(longestAnswer - m_answer.size());
    if (m_answer.size() >= longestAnswer)
        judge();
}

void ReportExchange::judge() {
    if (m_ended)
        return;
    if (isTransportError(m_reply->error())) {
        end(ReportError(ReportError::Transport{m_reply->errorString()}));
    } else if (status() == 0 && m_reply->error() == QNetworkReply::ContentReSendError) {
        end(ReportError::ofSystem(ECONNRESET)); // it would have been sent again
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

void ReportExchange::end(const std::optional<ReportError>& error) {
    if (!std::exchange(m_ended, true))
        Q_EMIT ended(error);
}

} // namespace OndelAppSupport
