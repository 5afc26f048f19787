#pragma once

namespace OndelCore::platform {

/// Gives memory that this process has freed back to the system, after something large that is not soon done
/// again; the allocator would keep some of it. Threads: any; takes less than a millisecond. Fails: silently.
void giveBackFreedMemory();

} // namespace OndelCore::platform
