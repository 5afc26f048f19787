#pragma once

#include "OndelCore/logging/LogLevel.h"

#include <array>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace OndelCore::logging {

/// The surroundings of a store, which tests replace.
struct LogEnvironment {
    std::function<std::chrono::system_clock::time_point()> now = &std::chrono::system_clock::now;
    std::chrono::nanoseconds tick = std::chrono::seconds(2); ///< the interval of the background writer
};

/// The recent log lines of this process, for problem reports, with a copy in a small rotating file. Appending
/// only uses memory; a background thread does all file work. Threads: any. Fails: silently. If the file
/// cannot be written, the lines in memory remain.
class LogStore {
public:
    /// The capacity of the shared store, in lines.
    static constexpr std::size_t capacity = 2000;

    /// The process's store. It is never destroyed, so the last destructor may still log.
    static LogStore& shared();
    static std::unique_ptr<LogStore> makeForTesting(std::size_t lines, LogEnvironment environment = {});
    ~LogStore();
    LogStore(const LogStore&) = delete;
    LogStore& operator=(const LogStore&) = delete;

    /// Adds a line. `body` must be redacted and scrubbed: it reaches the file and the reports unchanged. Only
    /// Log calls this.
    void append(LogLevel level, std::string_view category, std::string_view body) noexcept;

    /// The newest whole lines that fit, oldest first, separated by newlines. Units: bytes; a line takes its
    /// length plus one.
    std::string snapshot(std::int64_t maxBytes) const;

    /// Removes all lines from memory, including those not yet written. The file is unchanged.
    void clear();

    /// Starts writing lines to "ondel.log" in `directory`, which is made if missing. Absent: "Ondel" in the
    /// user's state folder. Further calls have no effect.
    void startFileLogging(const std::optional<std::filesystem::path>& directory);

    /// Writes pending lines to the file before it returns.
    void flush();

private:
    LogStore(std::size_t lines, LogEnvironment environment);

    std::string_view timestamp();
    void writePending();
    void runWriter(const std::stop_token& stop);

    const LogEnvironment m_environment;

    mutable std::mutex m_lock; ///< guards the fields below; never held during file work
    std::vector<std::string> m_ring;
    std::size_t m_next = 0;
    bool m_wrapped = false;
    std::optional<std::chrono::sys_seconds> m_cachedSecond;
    std::array<char, 64> m_cachedStamp{};
    std::size_t m_stampLength = 0;
    std::optional<std::filesystem::path> m_file;
    std::string m_pending; ///< whole lines, each with its newline

    std::mutex m_fileLock; ///< serialises all file work
    std::condition_variable_any m_wake;
    std::jthread m_writer; ///< last: destroyed before the fields above
};

} // namespace OndelCore::logging
