#include "OndelAppSupport/report/ReportSubmission.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/https/HttpsExchange.h"
#include "OndelCore/platform/process/Sandbox.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <string_view>
#include <utility>

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

/// The reason that the service gives; may be absent.
std::optional<QString> reason(const QByteArray& answer) {
    const QJsonValue error = QJsonDocument::fromJson(answer).object().value(QStringLiteral("error"));
    return error.isString() ? std::optional(error.toString()) : std::nullopt;
}

/// Why no report could be sent. The transfer's own library has English texts only.
constexpr const char* transportTexts[] = {
    QT_TRANSLATE_NOOP("BugReporter", "The answer's head is too long"),
    QT_TRANSLATE_NOOP("BugReporter", "No proxy can be used"),
    QT_TRANSLATE_NOOP("BugReporter", "libcurl.so.4 cannot be loaded"),
};

QString inWords(const https::TransportError& error) {
    const auto* const known = std::ranges::find_if(
        transportTexts, [&error](const char* text) { return std::string_view(text) == error.what(); });
    return known == std::ranges::end(transportTexts) ? QString::fromUtf8(error.what())
                                                     : QCoreApplication::translate("BugReporter", *known);
}

ReportError errorOf(const https::TransportError& error) {
    using Kind = https::TransportError::Kind;
    if (error.kind() == Kind::notHttps || error.kind() == Kind::notHttp)
        return ReportError(ReportError::Network());
    return ReportError(ReportError::Transport{inWords(error)});
}

/// Returns when the service has filed the report. Threads: blocks; may hang as https::exchange. Fails: throws
/// ReportError, or https::Stopped.
void sendReport(const QByteArray& body, const BugReporter::Service& service, const std::stop_token& stop) {
    int status = 0;
    QByteArray answer;
    https::Receiver receiver;
    receiver.head = [&](const https::Head& head) {
        status = head.status;
        return status != filed; // the body is not needed then
    };
    receiver.body = [&](QByteArrayView bytes) {
        answer += bytes.first(std::min(bytes.size(), longestAnswer - answer.size()));
        return answer.size() < longestAnswer;
    };
    const https::Connection connection{.userAgent = AppIdentity::current().name.toUtf8(),
                                       .authorities = service.authorities,
                                       .patience = service.limit,
                                       .limit = service.limit};
    if (const auto sandbox = OndelCore::platform::sandbox(); sandbox && !sandbox->hasNetwork)
        throw ReportError(ReportError::Transport{QCoreApplication::translate(
            "BugReporter", "The report can’t be sent from this sandbox, which has no network.")});
    try {
        https::exchange(request(body, service), connection, receiver, stop);
    } catch (const https::TransportError& error) {
        throw errorOf(error);
    }
    if (status == filed)
        return;
    //: %1 is a status of HTTP, as 500
    const QString rejected =
        QCoreApplication::translate("BugReporter", "The server rejected the report (%1).");
    throw ReportError(ReportError::Server{reason(answer).value_or(rejected.arg(status))});
}

} // namespace

QFuture<void> ReportSubmission::start(const QByteArray& body, const BugReporter::Service& service) {
    auto* submission = new ReportSubmission(body, service); // it owns itself
    return submission->m_promise.future();
}

ReportSubmission::ReportSubmission(const QByteArray& body, const BugReporter::Service& service)
    : QObject(QCoreApplication::instance())
    , m_work(this) {
    m_promise.start();
    m_watcher.setFuture(m_promise.future());
    connect(&m_watcher, &QFutureWatcher<void>::canceled, this, [this] { settle(); });
    QTimer::singleShot(service.limit, this, [this] { settle(ReportError::ofSystem(ETIMEDOUT)); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { delete this; });

    m_work.begin([this, body, service](const auto& post, const std::stop_token& stop) {
        std::optional<ReportError> error;
        try {
            sendReport(body, service, stop);
        } catch (const ReportError& failure) {
            error = failure;
        } catch (const https::Stopped&) { // settled already
        }
        post([this, error] {
            settle(error);
            deleteLater();
        });
    });
}

ReportSubmission::~ReportSubmission() {
    m_work.abandon();
    m_work.awaitEnd(std::chrono::seconds(1));
}

void ReportSubmission::settle(const std::optional<ReportError>& error) {
    if (std::exchange(m_settled, true))
        return;
    if (error)
        m_promise.setException(std::make_exception_ptr(*error));
    m_promise.finish();
    m_work.requestStop();
}

} // namespace OndelAppSupport
