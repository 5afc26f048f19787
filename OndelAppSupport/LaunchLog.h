#pragma once

#include "OndelCore/logging/Log.h"

namespace OndelAppSupport {

/// To be called once, when launching has finished: from here on the log also goes to "ondel.log" in the
/// folder "Ondel Tarnwick" under the user's state folder, and its first line tells what was launched where.
/// Threads: any. Fails: never; without a folder the log stays in memory.
void startLogging(const OndelCore::logging::LogOutput& output = OndelCore::logging::LogOutput::shared());

} // namespace OndelAppSupport
