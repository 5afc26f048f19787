#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/platform/drives/Circumstances.h"

#include <optional>

namespace TarnwickKit::model {

/// What was observed during a run, as its record keeps it. Absent parts were not tested or not observed.
struct ONDEL_PUBLIC RunEvidence {
    std::optional<OndelCore::benchmark::TestEvidence> sequentialWrite{};
    std::optional<OndelCore::benchmark::TestEvidence> sequentialRead{};
    std::optional<OndelCore::benchmark::TestEvidence> randomRead{};
    std::optional<OndelCore::benchmark::TestEvidence> randomWrite{};
    std::optional<OndelCore::benchmark::TestEvidence> fileOps{};
    std::optional<OndelCore::benchmark::Latency> randomReadLatency{};
    std::optional<OndelCore::benchmark::Latency> randomWriteLatency{};
    std::optional<OndelCore::benchmark::Latency> createLatency{};
    std::optional<OndelCore::benchmark::Latency> statLatency{};
    std::optional<OndelCore::benchmark::Latency> renameLatency{};
    std::optional<OndelCore::benchmark::Latency> deleteLatency{};
    std::optional<OndelCore::platform::Circumstances> circumstances{};

    /// What a result holds of it.
    static RunEvidence from(const OndelCore::benchmark::BenchmarkResult& result);

    bool operator==(const RunEvidence&) const = default;
    std::size_t hash() const {
        return OndelCore::hashFields(sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps,
                                     randomReadLatency, randomWriteLatency, createLatency, statLatency,
                                     renameLatency, deleteLatency, circumstances);
    }
};

} // namespace TarnwickKit::model
