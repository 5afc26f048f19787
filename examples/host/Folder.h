#pragma once

#include "examples/host/CommandLine.h"

#include <filesystem>

namespace examples::host {

/// The one FOLDER of a command that only looks at it; a file stands for the folder that holds it.
/// Fails: throws UsageError when there is none, more than one, or nothing of that name.
std::filesystem::path folderIn(const CommandLine& line);

} // namespace examples::host
