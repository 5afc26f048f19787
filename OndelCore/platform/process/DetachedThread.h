#pragma once

#include <system_error>
#include <thread>
#include <utility>

namespace OndelCore::platform {

/// Runs `work` on a thread of its own and not a pool's, for what may take long. The end of the process does
/// not wait for it, as long as the thread can be killed where it stands: it may wait for a child process, a
/// server or a lock, but must not enter a file system that may hang (see mayHang and askChildren).
/// Fails: false where the machine has no thread left; `work` is then gone, with the promises that it held.
template <typename Work>
bool runDetached(Work work) {
    try {
        std::thread(std::move(work)).detach();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

} // namespace OndelCore::platform
