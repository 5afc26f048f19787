#pragma once

#include "OndelCore/NamedError.h"

#include <QString>

#include <exception>
#include <string>
#include <variant>

namespace OndelAppSupport {

/// Why a report did not arrive.
class ReportError : public std::exception, public OndelCore::NamedError {
public:
    /// The service answered and refused. `text`: its own reason, or a sentence that names the status.
    struct Server {
        QString text;
        bool operator==(const Server&) const = default;
    };
    /// What answered did not speak as the service does.
    struct Network {
        bool operator==(const Network&) const = default;
    };
    /// No answer came, or none to be trusted. `text`: the system's own words.
    struct Transport {
        QString text;
        bool operator==(const Transport&) const = default;
    };
    using Cause = std::variant<Server, Network, Transport>;

    explicit ReportError(Cause cause);
    /// Transport, in the system's words for an errno value.
    static ReportError ofSystem(int error);

    const Cause& cause() const { return m_cause; }
    /// One sentence for the user.
    QString localizedDescription() const;
    const char* what() const noexcept override { return m_what.c_str(); }
    OndelCore::ErrorName errorName() const noexcept override;

private:
    Cause m_cause;
    std::string m_what;
};

} // namespace OndelAppSupport
