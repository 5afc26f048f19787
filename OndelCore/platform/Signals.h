#pragma once

namespace OndelCore::platform {

/// Leaves the process's signals to its other threads, so that none breaks off a system call here and writing
/// beyond a file-size limit is an error (EFBIG) and not the end of the process. Faults of the thread itself
/// still stop it.
void keepSignalsOffThisThread();

} // namespace OndelCore::platform
