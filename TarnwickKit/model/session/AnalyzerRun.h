#pragma once

#include "TarnwickKit/model/session/AnalyzerModel.h"

namespace TarnwickKit::model {

/// One run of the model's, from its start to its end; it is kept until the next one begins, so that a late
/// cancel meets an ended run.
struct AnalyzerModel::Run {
    Run(AnalyzerModel& model, OndelCore::benchmark::BenchmarkPlan runPlan, std::filesystem::path runTarget);

    const OndelCore::benchmark::BenchmarkPlan plan;
    const std::filesystem::path target;
    /// The target's as they were when the run began, or as they came first after that. The record is made of
    /// them.
    VolumeFacts volume;
    void learn(const VolumeFacts& facts) {
        if (!volume.info)
            volume.info = facts.info;
        if (!volume.capabilities)
            volume.capabilities = facts.capabilities;
    }
    std::stop_source stop;
    bool launched = false; ///< the engine has been called
    bool hasEnded = false;
    ProgressStream stream;
    QFutureWatcher<void> sweep;
    QFutureWatcher<OndelCore::benchmark::BenchmarkResult> engine;
    QPromise<void> ended;
};

/// Which properties a progress event has changed.
struct AnalyzerModel::Changes {
    bool liveTest = false;
    bool liveSamples = false;
    bool progress = false;

    Changes& operator|=(const Changes& other) {
        liveTest |= other.liveTest;
        liveSamples |= other.liveSamples;
        progress |= other.progress;
        return *this;
    }
};

} // namespace TarnwickKit::model
