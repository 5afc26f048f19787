#pragma once

#include "OndelCore/NamedError.h"

#include <QString>

#include <exception>
#include <string>
#include <variant>

namespace OndelAppSupport {

/// Why a report was not filed.
class ReportError : public std::exception, public OndelCore::NamedError {
public:
    /// The service answered and refused. `text`: its own reason, or a sentence that names the status.
    struct Server {
        QString text;
        bool operator==(const Server&) const = default;
    };
    /// The address or its server does not speak HTTPS.
    struct Network {
        bool operator==(const Network&) const = default;
    };
    /// No answer, or none that can be trusted. `text`: the system's error text.
    struct Transport {
        QString text;
        bool operator==(const Transport&) const = default;
    };
    using Cause = std::variant<Server, Network, Transport>;

    explicit ReportError(Cause cause);
    /// Transport, with the system's text of an errno value.
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
