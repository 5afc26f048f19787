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

/// An exchange with the report service, without waiting in the main thread. It ends in time even if the
/// exchange's thread hangs. Owner: itself; deleted when that thread has ended or when the application quits,
/// which cancels the future. Threads: main.
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
