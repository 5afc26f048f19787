#include "OndelAppSupport/report/ReportExchange.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/https/HttpsExchange.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace OndelAppSupport {

namespace {

constexpr qsizetype longestAnswer = 1 << 20; // bytes
constexpr int filed = 200;

https::Request request(const QByteArray& body, const BugReporter::Service& service) {
    const QByteArray secret = "X-Ondel-App-Secret";
    return {.url = service.endpoint,
            .headers = {"Content-Type: application/json",
                        service.secret.isEmpty() ? secret + ';' : secret + ": " + service.secret.toUtf8()},
            .body = body};
}

/// The service's own reason, if it gave one.
std::optional<QString> reason(const QByteArray& answer) {
    const QJsonValue error = QJsonDocument::fromJson(answer).object().value(QStringLiteral("error"));
    return error.isString() ? std::optional(error.toString()) : std::nullopt;
}

ReportError errorOf(const https::TransportError& error) {
    using Kind = https::TransportError::Kind;
    if (error.kind() == Kind::notHttps || error.kind() == Kind::notHttp)
        return ReportError(ReportError::Network());
    return ReportError(ReportError::Transport{QString::fromUtf8(error.what())});
}

} // namespace

void sendReport(const QByteArray& body, const BugReporter::Service& service, const std::stop_token& stop) {
    int status = 0;
    QByteArray answer;
    https::Receiver receiver;
    receiver.head = [&](const https::Head& head) {
        status = head.status;
        return status != filed; // whatever else it has to say
    };
    receiver.body = [&](QByteArrayView bytes) {
        answer += bytes.first(std::min(bytes.size(), longestAnswer - answer.size()));
        return answer.size() < longestAnswer;
    };
    const https::Connection connection{.userAgent = AppIdentity::current().name.toUtf8(),
                                       .authorities = service.authorities,
                                       .patience = service.limit,
                                       .limit = service.limit};
    try {
        https::exchange(request(body, service), connection, receiver, stop);
    } catch (const https::TransportError& error) {
        throw errorOf(error);
    }
    if (status == filed)
        return;
    const QString rejected =
        QCoreApplication::translate("BugReporter", "The server rejected the report (%1).");
    throw ReportError(ReportError::Server{reason(answer).value_or(rejected.arg(status))});
}

} // namespace OndelAppSupport
