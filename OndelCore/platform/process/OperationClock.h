#pragma once

#include <cstdint>

namespace OndelCore::platform {

/// For the durations of single operations: as monotonicNanoseconds(), but a reading costs 10 ns instead of 24
/// where the kernel itself keeps time by the processor's counter (x86-64), which is then read directly.
/// Single durations are right within 0.01 %; those above a quarter of a second are monotonicNanoseconds()'s
/// own, so that a suspended machine adds nothing.
///
/// The first call of a thread compares the two clocks for 5 ms. Units: nanoseconds. Threads: any; readings of
/// different threads do not compare.
std::int64_t operationNanoseconds();

} // namespace OndelCore::platform
