#pragma once

namespace OndelDesktop {

/// Whether a graphics processor is there that a program without privileges can draw with. Without one, OpenGL
/// is drawn by the processor, which costs a window three times the memory and twice the time to its first
/// picture. Threads: any. Fails: what cannot be told counts as none.
bool hasGraphicsDevice();

} // namespace OndelDesktop
