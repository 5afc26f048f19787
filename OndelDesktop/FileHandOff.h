#pragma once

#include <filesystem>
#include <functional>
#include <string>

/// Hands a file to another program of the desktop. Nothing blocks; an answer that does not come counts as
/// none. Threads: main, with an event loop. Fails: `failed` is called, later, when no program took the file.
namespace OndelDesktop {

/// Shows the file in the file manager, selected where that can be asked for.
void showInFolder(const std::filesystem::path& file, std::function<void()> failed);

/// Begins a message with the file attached. What is written and sent is the user's affair.
void sendByEmail(const std::filesystem::path& file, const std::string& subject, std::function<void()> failed);

} // namespace OndelDesktop
