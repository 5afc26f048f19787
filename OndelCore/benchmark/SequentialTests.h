#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/TestRun.h"

#include <cstdint>
#include <optional>
#include <system_error>

namespace OndelCore::benchmark {

// The three loops that move the data file from front to back, one block at a time. After the write or the
// preparation the file is flushed and stays for the tests that follow.
//
// All three block, and end with Cancelled before the next transfer once the run's flag is set. Fails: throws
// BenchmarkError::Io when a system call fails.

/// Writes the data file and measures it; the closing flush counts. With a fixed size the file ends at exactly
/// `targetBytes`. With fillDisk the live free space decides, and a full disk is a normal end. `volumePath`:
/// the target folder, open.
ThroughputResult sequentialWrite(const TestRun& run, std::int64_t targetBytes, int volumePath);

/// Writes the data file without measuring it: no sample and no progress call, however long it takes. A full
/// disk is a failure in either mode. Answers why the closing flush failed, if it did.
std::optional<std::error_code> prepareDataFile(const TestRun& run, std::int64_t targetBytes);

/// Reads the data file to its end and measures it.
ThroughputResult sequentialRead(const TestRun& run);

} // namespace OndelCore::benchmark
