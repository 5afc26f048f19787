#pragma once

#include "OndelCore/Export.h"

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace OndelCore::platform {

/// Whether a replaced file must survive a power loss. Files that can be recreated need not wait for the
/// medium.
enum class Lasting { onMedium, untilPowerLoss };

/// Replaces the content of the file `path` atomically: readers see the old bytes or the new ones, also after
/// a killed process or a power loss. On return the new content is on the medium, unless `lasting` asks for
/// less. A symbolic link at `path` is replaced, not followed. `permissions` are those of a new file, before
/// the process's mask. `isStillWanted`: asked just before the exchange. Threads: any. Fails: the system's
/// error, or operation_canceled if it is no longer wanted; the old file stays then. Success is no error.
ONDEL_KIT std::error_code replaceFile(const std::filesystem::path& path, std::string_view content,
                                      std::filesystem::perms permissions, Lasting lasting = Lasting::onMedium,
                                      const std::function<bool()>& isStillWanted = {});

/// Removes the temporary files older than a minute that processes killed inside `replaceFile` left in
/// `folder`. Threads: any. Fails: silently.
ONDEL_KIT void removeReplacementLeftovers(const std::filesystem::path& folder);

} // namespace OndelCore::platform
