#pragma once

#include "OndelAppSupport/report/BugReporter.h"

#include <QByteArray>

#include <stop_token>

namespace OndelAppSupport {

/// One request to the report service: returns when the service has filed the report.
/// Threads: blocks, not for the main thread; may hang as https::exchange. Fails: throws ReportError, or
/// https::Stopped.
void sendReport(const QByteArray& body, const BugReporter::Service& service, const std::stop_token& stop);

} // namespace OndelAppSupport
