#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/logging/LogField.h"
#include "OndelCore/logging/LogLevel.h"
#include "OndelCore/logging/LogText.h"

#include <array>
#include <atomic>
#include <concepts>
#include <span>
#include <string_view>
#include <utility>

namespace OndelCore::logging {

struct LogOutput;

/// The interface for logging: `Log::app.notice("run imported", LogField::bool_("shown", true));` The message
/// is a constant. Variable parts are LogFields, which know how they may be shown. Each line is redacted and
/// scrubbed before it reaches the system's log or the store. Threads: any; never blocks on a disk or on the
/// system's log. Fails: never, and never throws.
class ONDEL_PUBLIC Log {
public:
    using Level = LogLevel;

    /// `output`: of this project alone; null: the output of the process.
    explicit constexpr Log(LogText category, const LogOutput* output = nullptr)
        : m_category(category)
        , m_output(output) {}

    static const Log app;
    static const Log transfer;
    static const Log local;
    static const Log sftp;
    static const Log s3;
    static const Log ftp;
    static const Log archive;
    static const Log net;
    static const Log git;

    /// Lines below this level are dropped before rendering. Constant in the application.
    static inline std::atomic<Level> minimumLevel{Level::notice};

    template <std::same_as<LogField>... Fields>
    void debug(LogText message, Fields... fields) const {
        emitAll(Level::debug, message, std::move(fields)...);
    }
    template <std::same_as<LogField>... Fields>
    void notice(LogText message, Fields... fields) const {
        emitAll(Level::notice, message, std::move(fields)...);
    }
    template <std::same_as<LogField>... Fields>
    void error(LogText message, Fields... fields) const {
        emitAll(Level::error, message, std::move(fields)...);
    }
    template <std::same_as<LogField>... Fields>
    void fault(LogText message, Fields... fields) const {
        emitAll(Level::fault, message, std::move(fields)...);
    }
    void log(Level level, LogText message, std::span<const LogField> fields) const {
        emit(level, message, fields);
    }

private:
    template <typename... Fields>
    void emitAll(Level level, LogText message, Fields&&... fields) const {
        const std::array<LogField, sizeof...(Fields)> list{std::forward<Fields>(fields)...};
        emit(level, message, list);
    }
    void emit(Level level, LogText message, std::span<const LogField> fields) const noexcept;

    LogText m_category;
    const LogOutput* m_output;
};

inline constexpr Log Log::app{"app"};
inline constexpr Log Log::transfer{"transfer"};
inline constexpr Log Log::local{"provider.local"};
inline constexpr Log Log::sftp{"provider.sftp"};
inline constexpr Log Log::s3{"provider.s3"};
inline constexpr Log Log::ftp{"provider.ftp"};
inline constexpr Log Log::archive{"provider.archive"};
inline constexpr Log Log::net{"net"};
inline constexpr Log Log::git{"git"};

} // namespace OndelCore::logging
