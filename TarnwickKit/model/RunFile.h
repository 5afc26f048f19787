#pragma once

#include <QByteArray>

#include <filesystem>
#include <optional>

namespace TarnwickKit::model {

/// A regular file's whole content, for files that come from outside: absent above RunRecordJson's limit, and
/// for pipes and devices, which might never end.
/// Threads: any; blocks on the file system. Fails: absent.
std::optional<QByteArray> readRunFile(const std::filesystem::path& path);

} // namespace TarnwickKit::model
