#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/TestRun.h"

namespace OndelCore::benchmark {

// Single blocks at scattered offsets of the data file, which must be there: one thread, one operation
// outstanding at a time. A block that ends beyond the file is never touched.
//
// Both block, and end with Cancelled before the next operation once the run's flag is set. Fails: throws
// BenchmarkError: Io when a system call fails, FileTooSmallForRandom when the file holds no whole block.

IOPSResult randomRead(const TestRun& run);

/// Its closing flush counts against the rate.
IOPSResult randomWrite(const TestRun& run);

} // namespace OndelCore::benchmark
