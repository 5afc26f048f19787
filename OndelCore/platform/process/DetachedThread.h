#pragma once

#include <system_error>
#include <thread>
#include <utility>

namespace OndelCore::platform {

/// Runs `work` on a new thread, for tasks that may take long and would block a pool. The process does not
/// wait for the thread at its end, as long as the kernel can kill it: `work` may wait for a child process, a
/// server or a lock, but must not enter a file system that may hang (see mayHang and askChildren). Fails:
/// false if no thread can be started; `work` and the promises in it are destroyed then.
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
