#include "OndelCore/platform/process/SystemCalls.h"

#include <QUuid>

#include <malloc.h>
#include <pthread.h>
#include <sys/random.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace OndelCore::platform {

std::int64_t monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

void fillRandom(void* bytes, std::size_t size) {
    auto* next = static_cast<std::byte*>(bytes);
    while (size > 0) {
        // One call returns at most 32 MiB and may be interrupted by a signal: getrandom(2).
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

std::string newUuid() { return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString(); }

std::string errorText(int error) {
    char buffer[256];
    return strerror_r(error, buffer, sizeof buffer); // the GNU form, which may return a constant
}

std::error_code lastError() { return {errno, std::generic_category()}; }

void giveBackFreedMemory() { malloc_trim(0); }

void enterBackground(const char* name) {
    constexpr int niceness = 10; // half way to the lowest priority
    pthread_setname_np(pthread_self(), name);
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), niceness); // for this thread only on Linux
}

} // namespace OndelCore::platform
