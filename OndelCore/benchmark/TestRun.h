#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/CancelFlag.h"
#include "OndelCore/benchmark/DataFilePlace.h"
#include "OndelCore/benchmark/EngineEnvironment.h"
#include "OndelCore/benchmark/IoError.h"

#include <cstdint>

namespace OndelCore::benchmark {

/// What every test of one run works with. Owner: whoever made the run; it outlives the tests.
struct TestRun {
    const EngineEnvironment& system;
    const BenchmarkPlan& plan;
    DataFilePlace& dataFile;
    const CancelFlag& flag;
    const ProgressListener& progress;

    /// Every loop calls this before each operation. Fails: throws Cancelled.
    void throwIfCancelled() const {
        if (flag.isCancelled())
            throw Cancelled();
    }

    /// On the file system of an open folder; 0 when the system does not tell. Units: bytes.
    std::int64_t freeBytes(int folder) const { return system.freeBytes(folder).value_or(0); }

    /// Units: seconds on the uptime counter.
    double now() const { return static_cast<double>(system.monotonicNanoseconds()) / 1000000000.0; }
};

} // namespace OndelCore::benchmark
