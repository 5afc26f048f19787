#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/CancelFlag.h"
#include "OndelCore/benchmark/EngineEnvironment.h"

#include <filesystem>
#include <string_view>

namespace OndelCore::benchmark {

/// What every test of one run works with. Owner: whoever made the run; it outlives the tests.
struct TestRun {
    const EngineEnvironment& system;
    const BenchmarkPlan& plan;
    std::filesystem::path dataFile;
    const CancelFlag& flag;
    const ProgressListener& progress;

    /// Every loop calls this before each operation. Fails: throws Cancelled.
    void throwIfCancelled() const {
        if (flag.isCancelled())
            throw Cancelled();
    }

    /// Units: seconds on the uptime counter.
    double now() const { return static_cast<double>(system.monotonicNanoseconds()) / 1000000000.0; }
};

/// The error of a system call that has just failed: `prefix` names it, the system's wording follows.
BenchmarkError ioError(std::string_view prefix, int error);

} // namespace OndelCore::benchmark
