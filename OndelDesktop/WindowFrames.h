#pragma once

namespace OndelDesktop {

/// Whether the Wayland compositor draws title bars and borders of windows that ask for them. Where it does
/// not, each window draws its own. Threads: any. Fails: true when the compositor cannot be asked.
bool compositorDrawsFrames();

} // namespace OndelDesktop
