#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

namespace OndelCore::platform {

/// Makes `content` the whole content of the file `path`. Whoever opens the file meets either the old bytes or
/// the new ones, also after a killed process or a loss of power; once this returns, the new ones are on the
/// medium. A symbolic link at `path` is replaced, not followed. `permissions` are those of a new file, before
/// the process's mask.
/// Threads: any. Fails: the system's error, and the old file stays; no error is a good end.
std::error_code replaceFile(const std::filesystem::path& path, std::string_view content,
                            std::filesystem::perms permissions);

/// Removes what processes killed inside `replaceFile` left in `folder`, if it is older than a minute.
/// Threads: any. Fails: silently.
void removeReplacementLeftovers(const std::filesystem::path& folder);

} // namespace OndelCore::platform
