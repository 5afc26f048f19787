#pragma once

namespace OndelCore::platform {

/// Blocks signals in the calling thread, so that none interrupts its system calls, and writing beyond a
/// file-size limit fails with EFBIG instead of ending the process. Faults of the thread itself still stop it.
void keepSignalsOffThisThread();

/// Makes writing beyond the user's file-size limit fail with EFBIG, in every thread and in child processes,
/// instead of ending the process. Threads: the main one, before others exist.
void surviveFileSizeLimit();

} // namespace OndelCore::platform
