#pragma once

#include "TarnwickHost/CommandLine.h"

#include <filesystem>
#include <string_view>

namespace TarnwickHost {

/// How a folder on the command line can be looked at. `error`: errno of a look-up that failed, else 0.
struct FolderLook {
    int error = 0;
    bool isFolder = false;
};

/// Waits for a volume that may be waking up. Signals end the program meanwhile. Fails: throws
/// std::runtime_error with a sentence for people when half a minute has passed without an answer.
FolderLook look(std::string_view folder);

/// The one operand of a command, which must exist. Fails: throws UsageError, else as `look`.
std::filesystem::path folderIn(const CommandLine& line);

} // namespace TarnwickHost
