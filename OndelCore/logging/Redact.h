#pragma once

#include <atomic>
#include <exception>
#include <string>
#include <string_view>

namespace OndelCore::logging {

/// Renders sensitive values in a form that still helps to diagnose a fault: a path keeps its depth, extension
/// and lengths, identifiers remain distinguishable, an error shows its kind. Threads: any. Fails: never;
/// accepts any bytes.
class Redact {
public:
    enum class Detail { full, redacted };

    /// How much is shown, for the whole process. Constant in the application.
    static inline std::atomic<Detail> detail{Detail::redacted};

    /// Makes tokens of different processes incomparable. Never stored.
    static const std::string& salt();

    /// "/Users/ann/My Files/report.final.pdf" → "/1/2/3/«3f9a01».pdf len=36 name=16"
    static std::string path(std::string_view path);
    /// "#3f9a01"
    static std::string opaque(std::string_view value);
    /// "BenchmarkError.io OndelCore.BenchmarkError/1", "system_error posix=28 (No space left on device)"
    static std::string failure(const std::exception& error);
    /// The same for a caught exception; one that is no std::exception has a fixed text. `error` must not be
    /// null.
    static std::string failure(const std::exception_ptr& error);
};

} // namespace OndelCore::logging
