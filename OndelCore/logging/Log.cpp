#include "OndelCore/logging/Log.h"

#include "OndelCore/logging/LogOutput.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"
#include "OndelCore/logging/Utf8.h"
#include "OndelCore/platform/process/UnifiedLog.h"

#include <string>

namespace OndelCore::logging {

namespace {

/// The application id on the desktop: Linux programs have no bundle identifier.
constexpr std::string_view subsystem = "tools.ondel.tarnwick";

platform::UnifiedLogType unifiedTypeOf(LogLevel level) {
    switch (level) {
    case LogLevel::debug:
        return platform::UnifiedLogType::debug;
    case LogLevel::notice:
        return platform::UnifiedLogType::standard;
    case LogLevel::error:
        return platform::UnifiedLogType::error;
    case LogLevel::fault:
        return platform::UnifiedLogType::fault;
    }
    return platform::UnifiedLogType::standard;
}

std::string render(LogText message, std::span<const LogField> fields) {
    constexpr std::size_t usualLength = 256;
    std::string line;
    line.reserve(usualLength);
    line.append(message.view());
    for (const LogField& field : fields) {
        line.push_back(' ');
        field.appendTo(line);
    }
    mendUtf8(line);
    return line;
}

} // namespace

const LogOutput& LogOutput::shared() {
    static const platform::UnifiedLog& unified = *new platform::UnifiedLog;
    static const LogOutput& output = *new LogOutput{LogStore::shared(), LogScrubber::shared(), unified};
    return output;
}

void Log::emit(Level level, LogText message, std::span<const LogField> fields) const noexcept try {
    if (level < minimumLevel.load(std::memory_order_relaxed))
        return;
    const LogOutput& output = m_output ? *m_output : LogOutput::shared();
    std::string line = render(message, fields);
    if (Redact::detail == Redact::Detail::redacted)
        if (const int count = output.scrubber.scrub(line); count > 0)
            line.append(" scrubbed=").append(std::to_string(count));
    const platform::UnifiedLogType type = unifiedTypeOf(level);
    if (output.unified.isEnabled(type))
        output.unified.record({.subsystem = subsystem,
                               .category = m_category.view(),
                               .level = textOf(level),
                               .type = type,
                               .text = line});
    output.store.append(level, m_category.view(), line);
} catch (const std::exception&) {
    // Out of memory: the line is dropped.
}

} // namespace OndelCore::logging
