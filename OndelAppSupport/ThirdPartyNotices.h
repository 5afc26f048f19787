#pragma once

#include <filesystem>
#include <optional>
#include <vector>

namespace OndelAppSupport {

/// Where an installation, or the tree that this was built from, keeps the program's data files.
std::vector<std::filesystem::path> resourceFolders();

/// The file "ThirdPartyNotices.txt" in the first of the folders that has it. Threads: any. Fails: absent.
std::optional<std::filesystem::path>
thirdPartyNotices(const std::vector<std::filesystem::path>& folders = resourceFolders());

} // namespace OndelAppSupport
