#pragma once

#include <filesystem>
#include <functional>
#include <string>

/// Hands a file to another program of the desktop. Nothing blocks; programs that do not answer count as
/// absent. Threads: main, with an event loop. Fails: `failed` is called later when no program took the file.
namespace OndelDesktop {

/// Shows the file in the file manager: selected, where the file manager supports it.
void showInFolder(const std::filesystem::path& file, std::function<void()> failed);

/// Shows the content of the folder in the file manager.
void showFolder(const std::filesystem::path& folder, std::function<void()> failed);

/// Opens a new message with the file attached. The user writes and sends it.
void sendByEmail(const std::filesystem::path& file, const std::string& subject, std::function<void()> failed);

} // namespace OndelDesktop
