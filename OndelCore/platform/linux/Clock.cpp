#include "OndelCore/platform/Clock.h"

#include <ctime>

namespace OndelCore::platform {

std::int64_t monotonicNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return std::int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec;
}

} // namespace OndelCore::platform
