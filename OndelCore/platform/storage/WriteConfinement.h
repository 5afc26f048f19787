#pragma once

namespace OndelCore::platform {

/// From now on the calling thread, and whatever threads and processes it starts, can open for writing, make,
/// rename and remove files below the open `folder` only. Reading, and descriptors that are open already, go
/// on as before. There is no way back: for threads that end with their task. The system holds the folder for
/// some milliseconds after their end.
/// Fails: false where the system cannot do it, and nothing is changed.
bool confineWritesOfThisThread(int folder);

} // namespace OndelCore::platform
