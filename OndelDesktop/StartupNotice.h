#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OndelDesktop {

/// Ends the desktop's launch feedback, a busy pointer for example (freedesktop.org, "Startup Notification";
/// X11 only). The first window of a program ends it as well; a start that only raises the `window` of another
/// process has to do it here. The window also gets the id, and with it the permission to take the focus.
/// `id`: of the start; empty: nothing to do. Threads: any; waits for the display server. Fails: silently.
void completeStartup(const std::string& id, std::optional<std::uint32_t> window = std::nullopt);

} // namespace OndelDesktop
