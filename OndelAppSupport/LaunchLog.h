#pragma once

#include "OndelCore/logging/Log.h"
#include "OndelCore/logging/LogOutput.h"

#include <filesystem>
#include <optional>

namespace OndelAppSupport {

/// The folder of the log file: "Ondel Tarnwick" in the user's state folder. Threads: any. Fails: absent
/// without a home.
std::optional<std::filesystem::path> logFolder();

/// Makes ready on another thread what scrubs the first line, which takes some milliseconds. Threads: any;
/// does not block.
void prepareLogging();

/// Starts writing the log to "ondel.log" in that folder, with version and system in the first line. Called
/// once, when launching has finished. Threads: any. Fails: never; without a folder the log stays in memory.
void startLogging(const OndelCore::logging::LogOutput& output = OndelCore::logging::LogOutput::shared());

/// Writes the last lines to the file. Called once, before the process ends. Threads: main. Fails: gives up
/// after a second when the disk hangs.
void endLogging();

} // namespace OndelAppSupport
