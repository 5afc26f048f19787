#pragma once

#include "OndelCore/Export.h"

#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// What the sandbox of an application store leaves to this program.
struct Sandbox {
    bool hasNetwork = false;
};

/// Threads: any. Fails: absent outside of a sandbox, whose store then does not update this program.
ONDEL_KIT std::optional<Sandbox> sandbox(const std::filesystem::path& root = "/");

} // namespace OndelCore::platform
