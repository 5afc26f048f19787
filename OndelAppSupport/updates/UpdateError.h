#pragma once

#include "OndelCore/NamedError.h"

#include <QString>

#include <exception>

namespace OndelAppSupport::updates {

/// Why a check or a download failed.
class UpdateError : public std::exception, public OndelCore::NamedError {
public:
    enum class Cause {
        feedUnreachable,
        feedUnreadable,
        feedNotSecure, ///< the address of this build's feed is not https://
        offerIncomplete,
        packageUnreachable,
        wrongLength,
        wrongSignature,
        noRoom,
        notWritable,
        notOpened,
    };

    explicit UpdateError(Cause cause)
        : m_cause(cause) {}

    Cause cause() const { return m_cause; }
    /// One sentence for the user. `name`: of the product.
    QString description(const QString& name) const;

    const char* what() const noexcept override;
    OndelCore::ErrorName errorName() const noexcept override;

private:
    Cause m_cause;
};

} // namespace OndelAppSupport::updates
