#pragma once

#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/TestRun.h"

#include <cstdint>

namespace OndelCore::benchmark {

/// Makes `count` empty files in a new folder "fops" of the open folder `parent`, looks each one up, renames
/// each one and deletes each one, and times the four phases apart. Nothing is flushed: the figures are those
/// of the file system's metadata path as its cache shows it. The folder stays, empty.
///
/// Blocks; ends with Cancelled before the next operation once the run's flag is set. Fails: throws
/// BenchmarkError::Io when making, renaming or deleting fails, std::system_error when the folder cannot be
/// made. What was made by then stays.
FileOpsResult fileOps(const TestRun& run, int parent, std::int64_t count);

} // namespace OndelCore::benchmark
