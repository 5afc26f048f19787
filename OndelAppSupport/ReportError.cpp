#include "OndelAppSupport/ReportError.h"

#include "OndelCore/platform/ErrorText.h"

#include <QCoreApplication>

#include <utility>

namespace OndelAppSupport {

ReportError::ReportError(Cause cause)
    : m_cause(std::move(cause))
    , m_what(localizedDescription().toStdString()) {}

ReportError ReportError::ofSystem(int error) {
    return ReportError(Transport{QString::fromStdString(OndelCore::platform::errorText(error))});
}

QString ReportError::localizedDescription() const {
    if (const auto* refused = std::get_if<Server>(&m_cause))
        return refused->text;
    if (const auto* failed = std::get_if<Transport>(&m_cause))
        return failed->text;
    return QCoreApplication::translate("BugReporter",
                                       "Couldn’t reach the server. Check your connection and try again.");
}

} // namespace OndelAppSupport
