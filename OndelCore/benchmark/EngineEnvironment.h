#pragma once

#include "OndelCore/platform/drives/CircumstanceWatch.h"
#include "OndelCore/platform/drives/DiskWitness.h"
#include "OndelCore/platform/process/OperationClock.h"
#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileTrials.h"
#include "OndelCore/platform/storage/Storage.h"
#include "OndelCore/platform/storage/WriteConfinement.h"

#include <sys/types.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <system_error>

namespace OndelCore::benchmark {

/// What a run asks of the machine while it measures. The defaults are the machine; a test bends what it
/// needs. The four transfers answer as the system calls of their names do.
struct EngineEnvironment {
    std::function<std::int64_t()> monotonicNanoseconds = platform::monotonicNanoseconds;
    /// For what no rate depends on: when a test began, how long a flush took.
    std::function<std::int64_t()> evidenceClock = platform::monotonicNanoseconds;
    /// For latencies and pauses. Asked on the thread that measures, once for each operation.
    std::function<std::int64_t()> operationClock = platform::operationNanoseconds;
    std::function<std::optional<std::int64_t>(int descriptor)> freeBytes = platform::freeBytes;
    std::function<ssize_t(int, void*, std::size_t)> read = ::read;
    std::function<ssize_t(int, const void*, std::size_t)> write = ::write;
    std::function<ssize_t(int, void*, std::size_t, off_t)> pread = ::pread;
    std::function<ssize_t(int, const void*, std::size_t, off_t)> pwrite = ::pwrite;
    std::function<std::error_code(int)> flushToMedium = platform::flushToMedium;
    /// Called on the thread that measures, before it begins.
    std::function<bool(int folder)> confineWrites = platform::confineWritesOfThisThread;
    /// Asked after the tests, of the folder that holds their files.
    std::function<platform::TriedAbilities(int folder)> tryAbilities = platform::tryAbilities;
    /// Asked of the target folder when the run begins. The watch ends with the run.
    std::function<std::unique_ptr<platform::CircumstanceWatch>(int folder)> watchCircumstances =
        platform::watchCircumstances;
    /// Made of the target folder, and asked before and after each test.
    std::function<std::unique_ptr<platform::DiskWitness>(int folder)> diskWitness = platform::diskWitness;
    std::function<std::unique_ptr<platform::DiskWitness>(int folder)> volumeWitness = platform::volumeWitness;
    /// Asked on the thread that measures.
    std::function<std::optional<platform::ThreadTraffic>()> trafficOfThisThread =
        platform::trafficOfThisThread;
};

} // namespace OndelCore::benchmark
