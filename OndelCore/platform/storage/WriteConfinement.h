#pragma once

namespace OndelCore::platform {

/// From now on the calling thread, and whatever threads and processes it starts, can open for writing, make,
/// rename and remove files below the open `folder` only. Reading, and descriptors that are open already, go
/// on as before. There is no way back: for threads that end with their task. The system holds the folder for
/// a tenth of a second or two after their end, also when their process ends. Of a folder that was removed
/// its file system then says "busy" to who would remount it read-only; to unmount it, nobody has to wait.
/// Fails: false where the system cannot do it, and nothing is changed.
bool confineWritesOfThisThread(int folder);

} // namespace OndelCore::platform
