#pragma once

#include <filesystem>
#include <optional>

namespace OndelCore::platform {

/// A folder for temporary files that only this user can enter, not a guessable name in a folder that all
/// users share. The user's processes share it, and it lasts as long as the session, or, without a session's
/// own folder, until the system empties its temporary folder; a process that meets that gets another one.
/// Threads: any. Fails: absent when none can be made.
std::optional<std::filesystem::path> privateTemporaryFolder();

} // namespace OndelCore::platform
