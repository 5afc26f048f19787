#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/NamedError.h"

#include <cstdint>
#include <exception>
#include <string>
#include <variant>

namespace OndelCore::benchmark {

/// Why a run failed. The texts for people are the model's; `what` is for logs and debuggers.
class ONDEL_PUBLIC BenchmarkError : public std::exception, public NamedError {
public:
    /// Units: bytes.
    struct InsufficientSpace {
        std::int64_t needed = 0;
        std::int64_t available = 0;
        bool operator==(const InsufficientSpace&) const = default;
        std::size_t hash() const { return hashFields(needed, available); }
    };
    /// `text`: a prefix that names the failed call ("write: "), then the system's wording of `error`, which
    /// is 0 where it is not known.
    struct Io {
        std::string text;
        int error = 0;
        bool operator==(const Io& other) const { return text == other.text; }
        std::size_t hash() const { return hashFields(text); }
    };
    /// Nothing can be written into the folder, or there is none.
    struct NotWritable {
        bool operator==(const NotWritable&) const = default;
        std::size_t hash() const { return hashFields(); }
    };
    /// The data file holds no whole block of the random tests.
    struct FileTooSmallForRandom {
        bool operator==(const FileTooSmallForRandom&) const = default;
        std::size_t hash() const { return hashFields(); }
    };
    using Cause = std::variant<InsufficientSpace, Io, NotWritable, FileTooSmallForRandom>;

    explicit BenchmarkError(Cause cause);

    const Cause& cause() const { return m_cause; }
    const char* what() const noexcept override { return m_what.c_str(); }
    ErrorName errorName() const noexcept override;

    bool operator==(const BenchmarkError& other) const { return m_cause == other.m_cause; }
    std::size_t hash() const { return hashFields(m_cause); }

private:
    Cause m_cause;
    std::string m_what;
};

/// The run was told to stop. Nothing of it is left and there is no partial result.
class ONDEL_PUBLIC Cancelled : public std::exception, public NamedError {
public:
    const char* what() const noexcept override { return "cancelled"; }
    ErrorName errorName() const noexcept override { return {"Cancelled", {}, "OndelCore.Cancelled", 1}; }
};

} // namespace OndelCore::benchmark
