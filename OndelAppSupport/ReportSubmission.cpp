#include "OndelAppSupport/ReportSubmission.h"

#include "OndelAppSupport/ReportExchange.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
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
    , m_thread(new QThread) {
    m_promise.start();
    m_watcher.setFuture(m_promise.future());
    auto* exchange = new ReportExchange(body, service, m_stop.get_token());
    exchange->moveToThread(m_thread);
    connect(m_thread, &QThread::started, exchange, &ReportExchange::begin);
    connect(m_thread, &QThread::finished, exchange, &QObject::deleteLater);

    connect(exchange, &ReportExchange::ended, this, [this](const std::optional<ReportError>& error) {
        m_error = error;
        endThread();
    });
    connect(m_thread, &QThread::finished, this, [this] {
        settle(m_error);
        deleteLater();
    });
    connect(&m_watcher, &QFutureWatcher<void>::canceled, this, [this] { settle(); });
    QTimer::singleShot(service.limit, this, [this] { settle(ReportError::ofSystem(ETIMEDOUT)); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { delete this; });
    m_thread->start();
}

ReportSubmission::~ReportSubmission() {
    endThread();
    if (m_thread->wait(QDeadlineTimer(std::chrono::seconds(1))))
        delete m_thread;
}

void ReportSubmission::endThread() {
    m_stop.request_stop();
    m_thread->quit();
}

void ReportSubmission::settle(const std::optional<ReportError>& error) {
    if (std::exchange(m_settled, true))
        return;
    if (error)
        m_promise.setException(std::make_exception_ptr(*error));
    m_promise.finish();
    endThread();
}

} // namespace OndelAppSupport
