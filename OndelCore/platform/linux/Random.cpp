#include "OndelCore/platform/Random.h"

#include <sys/random.h>

#include <cerrno>
#include <cstdlib>

namespace OndelCore::platform {

void fillRandom(void* bytes, std::size_t size) {
    auto* next = static_cast<std::byte*>(bytes);
    while (size > 0) {
        // One call gives at most 32 MiB and may be broken off by a signal: getrandom(2).
        const ssize_t filled = getrandom(next, size, 0);
        if (filled < 0) {
            if (errno == EINTR)
                continue;
            std::abort();
        }
        next += filled;
        size -= static_cast<std::size_t>(filled);
    }
}

} // namespace OndelCore::platform
