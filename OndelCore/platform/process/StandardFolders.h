#pragma once

#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// The user's home folder: what the session says, else what the user database says.
/// Threads: any. Fails: absent when neither names an absolute path.
std::optional<std::filesystem::path> homeFolder();

/// Where programs keep what should outlive a restart but is no document: logs (XDG Base Directory, "state").
/// It may not exist yet. Threads: any. Fails: absent without a home folder.
std::optional<std::filesystem::path> stateHome();

/// Where programs keep what belongs to the user (XDG Base Directory, "data"). It may not exist yet.
/// Threads: any. Fails: absent without a home folder.
std::optional<std::filesystem::path> dataHome();

} // namespace OndelCore::platform
