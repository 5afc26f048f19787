#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace OndelDesktop {

/// Takes away the mark by which a desktop shows that a program is starting, a busy pointer for example. It
/// goes by itself when the program's first window shows; a start that ends in a window which was there before
/// has to say so. That `window` is let have what the start was given, which is the right to come to the
/// front. `id`: the desktop's name for the start; empty: it has none. Only X11 needs this (freedesktop.org,
/// "Startup Notification"). Threads: any; waits for the display server. Fails: silently.
void completeStartup(const std::string& id, std::optional<std::uint32_t> window = std::nullopt);

} // namespace OndelDesktop
