#pragma once

namespace OndelDesktop {

/// Whether an unprivileged program can draw with a graphics processor. Without one, OpenGL is rendered by the
/// CPU: a window then needs three times the memory and twice the time to its first frame.
/// Threads: any. Fails: false when it cannot be determined.
bool hasGraphicsDevice();

} // namespace OndelDesktop
