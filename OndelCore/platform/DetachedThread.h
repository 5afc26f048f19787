#pragma once

#include <system_error>
#include <thread>
#include <utility>

namespace OndelCore::platform {

/// Runs `work` on a thread of its own and not a pool's, for what may hang: on a dead mount or drive it may
/// never come back, and nothing, the end of the process included, waits for it.
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
