#pragma once

#include <QByteArray>
#include <QObject>

#include <filesystem>
#include <functional>
#include <system_error>

namespace TarnwickKit::views {

/// Writes a file where the user wants it, whole or not at all, with the permissions of an ordinary file. On
/// another thread, because the target may be the slow disk that was measured. Calls `done` on the thread of
/// `context`, unless that is gone by then.
void writeLater(QObject* context, const std::filesystem::path& target, const QByteArray& content,
                std::function<void(const std::error_code&)> done);

} // namespace TarnwickKit::views
