#pragma once

#include <QUrl>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace OndelCore::volumes {

/// The file that a URL names on this machine, byte for byte: file names need not be valid UTF-8.
/// Fails: absent for any other URL, and for one of another host.
std::optional<std::filesystem::path> localPath(std::string_view url);
std::optional<std::filesystem::path> localPath(const QUrl& url);

/// The URL of an absolute path.
std::string fileUrl(const std::filesystem::path& path);

} // namespace OndelCore::volumes
