#pragma once

#include "OndelCore/Export.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace OndelCore::platform {

/// The whole content of a regular file from an untrusted source. A pipe or a device, which might block or
/// never end, is refused, also if it replaces the file at the last moment. Threads: any; blocks on the file
/// system. Fails: absent, also for a file of more than `most` bytes and for one whose length changes
/// meanwhile.
ONDEL_KIT std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most);

/// The same; `error` says why there is no content: std::errc::not_supported for what is no regular file,
/// file_too_large, resource_unavailable_try_again for a length that changes, else the system's own.
ONDEL_KIT std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most,
                                                     std::error_code& error);

} // namespace OndelCore::platform
