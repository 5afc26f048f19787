#pragma once

namespace OndelCore::platform {
class UnifiedLog;
}

namespace OndelCore::logging {

class LogScrubber;
class LogStore;

/// The destinations of log lines, and their scrubber. Owner: the maker; must outlive the Log that uses it.
struct LogOutput {
    LogStore& store;
    const LogScrubber& scrubber;
    const platform::UnifiedLog& unified;

    /// The output of the process.
    static const LogOutput& shared();
};

} // namespace OndelCore::logging
