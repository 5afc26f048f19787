#include "OndelCore/logging/LogStore.h"

#include "OndelCore/logging/LogFile.h"
#include "OndelCore/platform/process/Signals.h"
#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <system_error>

namespace OndelCore::logging {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view between = "  ";

/// "000" to "999": avoids formatting a number for each line.
constexpr auto milliseconds = [] {
    std::array<std::array<char, 3>, 1000> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = {static_cast<char>('0' + i / 100), static_cast<char>('0' + i / 10 % 10),
                    static_cast<char>('0' + i % 10)};
    return table;
}();

/// In local time, independent of the locale.
std::size_t formatSecond(std::chrono::sys_seconds second, std::array<char, 64>& text) {
    const std::time_t time = std::chrono::system_clock::to_time_t(second);
    std::tm local{};
    localtime_r(&time, &local);
    return std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &local);
}

} // namespace

LogStore::LogStore(std::size_t lines, LogEnvironment environment)
    : m_environment(std::move(environment))
    , m_ring(lines) {
    if (lines == 0)
        std::abort(); // a ring needs a slot
    tzset();          // reads the time zone file, which the first append would otherwise do under the lock
}

LogStore::~LogStore() = default;

LogStore& LogStore::shared() {
    static LogStore& store = *new LogStore(capacity, {});
    return store;
}

std::unique_ptr<LogStore> LogStore::makeForTesting(std::size_t lines, LogEnvironment environment) {
    return std::unique_ptr<LogStore>(new LogStore(lines, std::move(environment)));
}

/// The stamp without milliseconds is cached for a second. The lock must be held.
std::string_view LogStore::timestamp() {
    const auto now = m_environment.now();
    const auto second = std::chrono::floor<std::chrono::seconds>(now);
    if (second != m_cachedSecond) {
        m_cachedSecond = second;
        m_stampLength = std::min(formatSecond(second, m_cachedStamp), m_cachedStamp.size() - 4);
        m_cachedStamp[m_stampLength] = '.';
    }
    const auto fraction = std::chrono::floor<std::chrono::milliseconds>(now - second).count();
    const auto& digits = milliseconds[static_cast<std::size_t>(fraction)];
    std::copy(digits.begin(), digits.end(), m_cachedStamp.begin() + m_stampLength + 1);
    return {m_cachedStamp.data(), m_stampLength + 1 + digits.size()};
}

void LogStore::append(LogLevel level, std::string_view category, std::string_view body) noexcept try {
    constexpr std::size_t keptBytes = 4096; // a slot reuses its memory unless it grew beyond this
    const std::string_view levelText = textOf(level);
    const std::lock_guard guard(m_lock);
    const std::string_view stamp = timestamp();
    std::string& line = m_ring[m_next];
    if (line.capacity() > keptBytes)
        line = std::string();
    line.clear();
    line.reserve(stamp.size() + levelText.size() + category.size() + body.size() + 3 * between.size());
    line.append(stamp).append(between).append(levelText).append(between);
    line.append(category).append(between).append(body);
    m_next = (m_next + 1) % m_ring.size();
    m_wrapped = m_wrapped || m_next == 0;
    if (m_file)
        m_pending.append(line).push_back('\n');
} catch (const std::exception&) {
    // Out of memory: the line is dropped.
}

std::string LogStore::snapshot(std::int64_t maxBytes) const {
    const std::lock_guard guard(m_lock);
    const std::size_t held = m_wrapped ? m_ring.size() : m_next;
    const auto newest = [this](std::size_t age) -> const std::string& {
        return m_ring[(m_next + m_ring.size() - 1 - age) % m_ring.size()];
    };
    std::size_t kept = 0;
    std::int64_t total = 0;
    for (; kept < held; ++kept) {
        const auto bytes = static_cast<std::int64_t>(newest(kept).size()) + 1;
        if (total + bytes > maxBytes)
            break;
        total += bytes;
    }
    std::string text;
    text.reserve(static_cast<std::size_t>(total));
    while (kept-- > 0) {
        text.append(newest(kept));
        if (kept > 0)
            text.push_back('\n');
    }
    return text;
}

void LogStore::clear() {
    const std::lock_guard guard(m_lock);
    m_ring.assign(m_ring.size(), {});
    m_next = 0;
    m_wrapped = false;
    m_pending.clear();
}

void LogStore::startFileLogging(const std::optional<fs::path>& directory) {
    const std::lock_guard files(m_fileLock);
    if (m_writer.joinable())
        return;
    const auto state = platform::stateHome();
    if (!directory && !state)
        return; // no folder: the lines stay in memory only
    const fs::path folder = directory ? *directory : *state / "Ondel";
    makeLogFolder(folder);
    try {
        m_writer = std::jthread([this](const std::stop_token& stop) { runWriter(stop); });
    } catch (const std::system_error&) {
        return; // no thread: pending lines would accumulate
    }
    const std::lock_guard guard(m_lock);
    m_file = folder / "ondel.log";
}

void LogStore::flush() {
    const std::lock_guard files(m_fileLock);
    writePending();
}

void LogStore::runWriter(const std::stop_token& stop) {
    platform::enterBackground("tools.ondel.log");
    platform::keepSignalsOffThisThread(); // else exceeding the user's file-size limit would end the process
    std::unique_lock files(m_fileLock);
    auto next = std::chrono::steady_clock::now();
    while (!stop.stop_requested()) {
        next = std::max(next + m_environment.tick, std::chrono::steady_clock::now());
        m_wake.wait_until(files, stop, next, [] { return false; });
        if (!stop.stop_requested())
            writePending();
    }
}

/// m_fileLock must be held, so that writers do not overlap and lines keep their order.
void LogStore::writePending() {
    std::string lines;
    std::optional<fs::path> file;
    {
        const std::lock_guard guard(m_lock);
        lines.swap(m_pending);
        file = m_file;
    }
    if (!file || lines.empty())
        return;
    if (rotateIfNeeded(*file))
        appendToLogFile(*file, lines);
}

} // namespace OndelCore::logging
