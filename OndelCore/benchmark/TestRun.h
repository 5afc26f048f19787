#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/CancelFlag.h"
#include "OndelCore/benchmark/EngineEnvironment.h"

#include <cstdint>
#include <filesystem>

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

    /// 0 when the system does not tell. Units: bytes.
    std::int64_t freeBytes(const std::filesystem::path& path) const {
        return system.freeBytes(path).value_or(0);
    }

    /// Units: seconds on the uptime counter.
    double now() const { return static_cast<double>(system.monotonicNanoseconds()) / 1000000000.0; }
};

} // namespace OndelCore::benchmark
