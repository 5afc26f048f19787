#pragma once

#include <atomic>
#include <exception>
#include <string>
#include <string_view>

namespace OndelCore::logging {

/// Renders what is known to be sensitive in a form that still helps to find a fault: a path keeps its depth,
/// its extension and its lengths, an identifier can be told from another, an error shows its kind. Threads:
/// any. Fails: never; any bytes are taken.
class Redact {
public:
    enum class Detail { full, redacted };

    /// How much is shown, for the whole process. Nothing in the application changes it.
    static inline std::atomic<Detail> detail{Detail::redacted};

    /// Makes the tokens of this process useless in any other. Never stored.
    static const std::string& salt();

    /// "/Users/ann/My Files/report.final.pdf" → "/1/2/3/«3f9a01».pdf len=36 name=16"
    static std::string path(std::string_view path);
    /// "#3f9a01"
    static std::string opaque(std::string_view value);
    /// "BenchmarkError.io OndelCore.BenchmarkError/1", "system_error posix=28 (No space left on device)"
    static std::string failure(const std::exception& error);
    /// The same of a caught exception; of one that is no std::exception only that. Fails: `error` must hold
    /// one.
    static std::string failure(const std::exception_ptr& error);
};

} // namespace OndelCore::logging
