#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

namespace OndelCore::platform {

/// Whether a replaced file must outlast a loss of power; what can be made again need not wait for the medium.
enum class Lasting { onMedium, untilPowerLoss };

/// Makes `content` the whole content of the file `path`. Whoever opens the file meets either the old bytes or
/// the new ones, also after a killed process or a loss of power; once this returns, the new ones are on the
/// medium, unless `lasting` asks for less. A symbolic link at `path` is replaced, not followed. `permissions`
/// are those of a new file, before the process's mask. `isStillWanted`: asked when all but the exchange is
/// done. Threads: any. Fails: the system's error, operation_canceled if it is not wanted any more, and the
/// old file stays; no error is a good end.
std::error_code replaceFile(const std::filesystem::path& path, std::string_view content,
                            std::filesystem::perms permissions, Lasting lasting = Lasting::onMedium,
                            const std::function<bool()>& isStillWanted = {});

/// Removes what processes killed inside `replaceFile` left in `folder`, if it is older than a minute.
/// Threads: any. Fails: silently.
void removeReplacementLeftovers(const std::filesystem::path& folder);

} // namespace OndelCore::platform
