#pragma once

namespace OndelCore::platform {

/// Leaves the process's signals to its other threads, so that none breaks off a system call here and writing
/// beyond a file-size limit is an error (EFBIG) and not the end of the process. Faults of the thread itself
/// still stop it.
void keepSignalsOffThisThread();

/// From now on writing beyond the user's file-size limit is an error (EFBIG) in every thread, and in what
/// this process starts, and ends nobody. Threads: the main one, before others exist.
void surviveFileSizeLimit();

} // namespace OndelCore::platform
