#pragma once

#include "OndelAppSupport/BugReporter.h"

#include <QByteArray>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>

#include <optional>
#include <stop_token>

namespace OndelAppSupport {

/// One request to the report service and what is made of the answer.
/// Threads: a thread of its own with an event loop, because the network library waits for the desktop's proxy
/// settings, and those for other servers, wherever it is asked.
class ReportExchange : public QObject {
    Q_OBJECT
public:
    /// `stop`: breaks off the search for the service's address, which an event cannot.
    ReportExchange(QByteArray body, const BugReporter::Service& service, std::stop_token stop);

    void begin();
    Q_SIGNAL void ended(const std::optional<OndelAppSupport::ReportError>& error);

private:
    int status() const;
    void readMore();
    void judge();
    void end(const std::optional<ReportError>& error = std::nullopt);

    const QByteArray m_body;
    const QNetworkRequest m_request;
    const std::stop_token m_stop;
    QNetworkReply* m_reply = nullptr; ///< goes with this object
    QByteArray m_answer;
    bool m_ended = false;
};

} // namespace OndelAppSupport
