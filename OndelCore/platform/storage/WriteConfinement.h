#pragma once

namespace OndelCore::platform {

/// Restricts the calling thread, and the threads and processes that it starts, to changes below the open
/// `folder`: elsewhere no file can be opened for writing, made, renamed or removed. Reading and descriptors
/// that are already open are not restricted. It cannot be undone, so use it on threads that end with their
/// task. The kernel keeps a reference to the folder for 0.1 to 0.2 s after such a thread ends. If the folder
/// was removed, remounting its file system read-only fails with "busy" meanwhile; unmounting works. Fails:
/// false where the system does not support it; nothing is changed then.
bool confineWritesOfThisThread(int folder);

} // namespace OndelCore::platform
