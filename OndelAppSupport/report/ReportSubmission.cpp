#include "OndelAppSupport/report/ReportSubmission.h"

#include "OndelAppSupport/https/HttpsExchange.h"
#include "OndelAppSupport/report/ReportExchange.h"

#include <QCoreApplication>
#include <QTimer>

#include <cerrno>
#include <exception>
#include <utility>

namespace OndelAppSupport {

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
        } catch (const https::Stopped&) { // it is settled already
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
