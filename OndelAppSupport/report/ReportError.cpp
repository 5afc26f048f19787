#include "OndelAppSupport/report/ReportError.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <QCoreApplication>

#include <array>
#include <string_view>
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

OndelCore::ErrorName ReportError::errorName() const noexcept {
    constexpr std::array<std::string_view, std::variant_size_v<Cause>> caseNames{"server", "network",
                                                                                 "transport"};
    return {"ReportError", caseNames.at(m_cause.index()), "OndelAppSupport.ReportError",
            static_cast<int>(m_cause.index())};
}

} // namespace OndelAppSupport
