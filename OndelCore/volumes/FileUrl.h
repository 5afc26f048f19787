#pragma once

#include "OndelCore/Export.h"

#include <QUrl>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace OndelCore::volumes {

/// The path of a file URL of this machine, as bytes: file names need not be UTF-8. Fails: absent for other
/// URLs, including files of another host.
ONDEL_PUBLIC std::optional<std::filesystem::path> localPath(std::string_view url);
/// The same of a QUrl.
ONDEL_PUBLIC std::optional<std::filesystem::path> localPath(const QUrl& url);

/// The URL of an absolute path.
ONDEL_PUBLIC std::string fileUrl(const std::filesystem::path& path);

} // namespace OndelCore::volumes
