#pragma once

#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace TarnwickKit::model {

/// What the files of the program's lists have in common. Several programs may write such a file; a damaged
/// one is kept beside under another name.

/// Other users must not read what a list tells of a person's machine.
inline constexpr auto listFilePermissions =
    std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;

/// The path behind symbolic links. The file need not exist.
std::filesystem::path behindLinks(std::filesystem::path path);

/// The file whose lock guards `file`.
std::filesystem::path lockOf(const std::filesystem::path& file);

/// Whether reading again would fail too, because this is no file that this user can read.
bool isFinalReadError(const std::error_code& error);

/// Keeps an unreadable list's file beside, as `prefix` with the time behind it, and drops the oldest of those
/// beyond three. A hard link is preferred, so that a process killed in between leaves the file in its place.
/// `recovered`: how many entries were read from it, for the log. Fails: false.
bool keepBeside(const std::filesystem::path& file, std::string_view prefix, std::size_t recovered);

} // namespace TarnwickKit::model
