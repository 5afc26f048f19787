#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace OndelAppSupport {

/// The folders in which an installation, or the source tree of a build, keeps the program's data files.
std::vector<std::filesystem::path> resourceFolders();

/// The first file "ThirdPartyNotices.txt" in these folders. Threads: any. Fails: absent.
std::optional<std::filesystem::path>
thirdPartyNotices(const std::vector<std::filesystem::path>& folders = resourceFolders());

} // namespace OndelAppSupport
