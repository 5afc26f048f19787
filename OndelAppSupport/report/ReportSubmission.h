#pragma once

#include "OndelAppSupport/https/AbandonableWork.h"
#include "OndelAppSupport/report/BugReporter.h"

#include <QByteArray>
#include <QFuture>
#include <QFutureWatcher>
#include <QObject>
#include <QPromise>

#include <optional>

namespace OndelAppSupport {

/// An exchange with the report service as the user's thread sees it: nothing in it waits, and it is over in
/// time even if the exchange's own thread is stuck. Owner: itself; it goes when that thread has ended, and,
/// with its future cancelled, when the application quits. Threads: main.
class ReportSubmission : public QObject {
    Q_OBJECT
public:
    static QFuture<void> start(const QByteArray& body, const BugReporter::Service& service);

private:
    ReportSubmission(const QByteArray& body, const BugReporter::Service& service);
    ~ReportSubmission() override;

    void settle(const std::optional<ReportError>& error = std::nullopt);

    QPromise<void> m_promise;
    QFutureWatcher<void> m_watcher;
    bool m_settled = false;
    https::AbandonableWork m_work;
};

} // namespace OndelAppSupport
