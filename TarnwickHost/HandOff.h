#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"

#include <QDateTime>

#include <filesystem>
#include <optional>

namespace TarnwickHost {

/// What a run file tells of the moment before its run: make it then.
class HandOff {
public:
    /// Blocks on asking for the volume that holds `folder`. Fails: never, what is not told is absent.
    explicit HandOff(const std::filesystem::path& folder);

    /// Writes the run file. Fails: absent.
    std::optional<std::filesystem::path> write(const OndelCore::benchmark::BenchmarkPlan& plan,
                                               const OndelCore::benchmark::BenchmarkResult& result) const;

private:
    std::optional<OndelCore::volumes::VolumeInfo> m_volume;
    std::optional<OndelCore::volumes::VolumeCapabilities> m_capabilities;
    QDateTime m_date;
};

} // namespace TarnwickHost
