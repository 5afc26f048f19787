#pragma once

#include "OndelAppSupport/BugReporter.h"

#include <QFuture>
#include <QFutureWatcher>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QPromise>
#include <QVariantMap>

#include <optional>

namespace OndelAppSupport {

/// One exchange with the report service. Owner: itself; it goes when the exchange is over, and, with its
/// future cancelled, when the application quits. Threads: main.
class ReportSubmission : public QObject {
    Q_OBJECT
public:
    static QFuture<void> start(const QVariantMap& payload, const BugReporter::Service& service);

private:
    ReportSubmission(const QVariantMap& payload, const BugReporter::Service& service);

    int status() const;
    void readMore();
    void judge();
    void end(const std::optional<ReportError>& error = std::nullopt);

    QPromise<void> m_promise;
    QFutureWatcher<void> m_watcher;
    QNetworkAccessManager m_network;
    QNetworkReply* m_reply = nullptr; ///< owned by m_network
    QByteArray m_answer;
    bool m_ended = false;
};

} // namespace OndelAppSupport
