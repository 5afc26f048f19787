#pragma once

#include <cstdint>

namespace OndelCore::platform {

/// The uptime counter: it never goes back and no clock setting touches it. Units: nanoseconds. Threads: any.
std::int64_t monotonicNanoseconds();

} // namespace OndelCore::platform
