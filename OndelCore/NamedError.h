#pragma once

#include <string_view>

namespace OndelCore {

/// Which error it is, without anything it carries: what a log may tell of it. All texts are constants.
struct ErrorName {
    std::string_view type;     ///< the type's own name: "BenchmarkError"
    std::string_view caseName; ///< the kind within the type: "notWritable"; empty for a type of one kind
    std::string_view domain;   ///< who counts the codes: "OndelCore.BenchmarkError"
    int code = 0;              ///< the kind's number within the domain
};

/// The domain whose codes are errno values.
inline constexpr std::string_view posixErrorDomain = "POSIX";

/// To be inherited, beside std::exception, by every error of ours that may reach a log. C++ cannot look at a
/// value's type and case by itself, and what() may hold a path.
class NamedError {
public:
    virtual ErrorName errorName() const noexcept = 0;

protected:
    NamedError() = default;
    NamedError(const NamedError&) = default;
    NamedError& operator=(const NamedError&) = default;
    ~NamedError() = default;
};

} // namespace OndelCore
