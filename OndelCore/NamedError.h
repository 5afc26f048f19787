#pragma once

#include "OndelCore/Export.h"

#include <string_view>

namespace OndelCore {

/// The identity of an error without its payload, for logs. All texts are constants.
struct ErrorName {
    std::string_view type;     ///< the type's name: "BenchmarkError"
    std::string_view caseName; ///< the kind within the type: "notWritable"; empty for types of a single kind
    std::string_view domain;   ///< the domain of the code: "OndelCore.BenchmarkError"
    int code = 0;              ///< the kind's number within the domain
};

/// The domain whose codes are errno values.
inline constexpr std::string_view posixErrorDomain = "POSIX";

/// Base class, beside std::exception, of errors that may reach a log. C++ cannot reflect on the type and case
/// of an error, and what() may hold a path.
class ONDEL_PUBLIC NamedError {
public:
    /// The texts live as long as the library.
    virtual ErrorName errorName() const noexcept = 0;

protected:
    NamedError() = default;
    NamedError(const NamedError&) = default;
    NamedError& operator=(const NamedError&) = default;
    ~NamedError() = default;
};

} // namespace OndelCore
