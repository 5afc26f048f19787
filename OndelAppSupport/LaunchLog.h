#pragma once

#include "OndelCore/logging/Log.h"

#include <filesystem>
#include <optional>

namespace OndelAppSupport {

/// Where the log file lies: "Ondel Tarnwick" in the user's state folder. Threads: any. Fails: absent without
/// a home.
std::optional<std::filesystem::path> logFolder();

/// To be called once, when launching has finished: from here on the log also goes to "ondel.log" in
/// that folder, and its first line tells what was launched where.
/// Threads: any. Fails: never; without a folder the log stays in memory.
void startLogging(const OndelCore::logging::LogOutput& output = OndelCore::logging::LogOutput::shared());

/// To be called once, before the process ends: the last lines also go to the file. Threads: main. Fails: a
/// file whose disk hangs is waited for a second.
void endLogging();

} // namespace OndelAppSupport
