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

/// What a test may bend of a store's surroundings.
struct LogEnvironment {
    std::function<std::chrono::system_clock::time_point()> now = &std::chrono::system_clock::now;
    std::chrono::nanoseconds tick = std::chrono::seconds(2); ///< between two looks at what is to be written
};

/// The recent log lines of this process, for a problem report, and their copy in a small rotating file. An
/// append only touches memory; all file work happens on a background thread. Threads: any. Fails: never
/// visibly. A file that cannot be written is done without; the lines in memory stay.
class LogStore {
public:
    /// Lines kept by the shared store.
    static constexpr std::size_t capacity = 2000;

    /// The process's store. It is never destroyed, so the last destructor may still log.
    static LogStore& shared();
    static std::unique_ptr<LogStore> makeForTesting(std::size_t lines, LogEnvironment environment = {});
    ~LogStore();
    LogStore(const LogStore&) = delete;
    LogStore& operator=(const LogStore&) = delete;

    /// Keeps one line. `body` must have gone through Redact and LogScrubber: what comes in here reaches the
    /// file and the reports as it stands. Log is the one caller.
    void append(LogLevel level, std::string_view category, std::string_view body) noexcept;

    /// The newest whole lines that fit, oldest first, with a newline between them. Units: bytes; a line takes
    /// its length and one.
    std::string snapshot(std::int64_t maxBytes) const;

    /// Forgets what is in memory, also what still waits for the file. The file is left alone.
    void clear();

    /// From now on lines also go to "ondel.log" in `directory`, which is made if need be; absent: "Ondel" in
    /// the user's state folder. A second call changes nothing.
    void startFileLogging(const std::optional<std::filesystem::path>& directory);

    /// Writes what waits, and returns when that is done.
    void flush();

private:
    LogStore(std::size_t lines, LogEnvironment environment);

    std::string_view timestamp();
    void writePending();
    void runWriter(const std::stop_token& stop);

    const LogEnvironment m_environment;

    mutable std::mutex m_lock; ///< guards what follows, held for memory work only
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
    std::jthread m_writer; ///< last: it ends before anything above goes
};

} // namespace OndelCore::logging
