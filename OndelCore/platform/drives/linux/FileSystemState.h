#pragma once

#include "OndelCore/platform/drives/Circumstances.h"
#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>

namespace OndelCore::platform {

/// Adds what a mount's type and options say, and what the file system says of a new file in `folder`. For
/// that it makes one without a name, which is gone at once, on file systems of the kernel on this machine.
/// Threads: any; no device is opened. Fails: what cannot be told stays absent or unset.
void addFileSystemState(Circumstances& circumstances, const Mount& mount, int folder,
                        const SystemSources& sources, const std::filesystem::path& proc);

/// Adds the size of the file system of the open `folder` and what is free on it.
void addSizes(Circumstances& circumstances, int folder);

} // namespace OndelCore::platform
