#pragma once

#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/capacity/CapacityCheck.h"
#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/platform/process/ChildQuestion.h"
#include "OndelCore/volumes/Location.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QDateTime>

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <stop_token>

namespace TarnwickKit::model {

/// What the model asks the machine. `real()` is the machine itself; tests replace single answers.
struct AnalyzerServices {
    /// See BenchmarkEngine::run.
    std::function<QFuture<OndelCore::benchmark::BenchmarkResult>(
        OndelCore::benchmark::BenchmarkPlan, std::filesystem::path folder,
        OndelCore::benchmark::BenchmarkEngine::Progress, std::stop_token)>
        runBenchmark;
    /// See CapacityCheck::run. Threads: called on a thread of its own, and blocks for the whole check.
    std::function<OndelCore::capacity::CapacityResult(const OndelCore::capacity::CapacityPlan&,
                                                      std::stop_token,
                                                      const OndelCore::capacity::CapacityListener&)>
        checkCapacity;
    /// See BenchmarkEngine::cleanupOrphans. Threads: called on a thread of its own.
    std::function<void(const std::filesystem::path& folder)> cleanupOrphans;
    /// See VolumeInfo::load and VolumeCapabilities::probe. Threads: called on a thread of their own.
    std::function<std::optional<OndelCore::volumes::VolumeInfo>(const OndelCore::volumes::Location&)>
        loadVolume;
    std::function<std::optional<OndelCore::volumes::VolumeCapabilities>(const OndelCore::volumes::Location&)>
        probeCapabilities;
    /// How long a selection waits for loadVolume and probeCapabilities.
    std::chrono::milliseconds volumePatience = OndelCore::platform::volumePatience;
    /// See DiskHealth::read. Threads: called on a thread of its own.
    std::function<std::optional<OndelCore::health::DiskSMART>(const std::filesystem::path&)> readHealth;
    /// See DriveInfo::identity.
    RunRecord::IdentityOf driveIdentity;
    /// See HistoryStore.
    std::optional<std::filesystem::path> historyFolder;
    /// The wall clock.
    std::function<QDateTime()> now;

    static AnalyzerServices real();
};

} // namespace TarnwickKit::model
