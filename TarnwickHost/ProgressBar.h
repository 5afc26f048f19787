#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"

#include <chrono>
#include <mutex>
#include <optional>

namespace TarnwickHost {

/// A run's progress on one line of the terminal behind standard error, erased when the object goes.
/// Threads: `note` any, the others the one that made it.
class ProgressBar {
public:
    /// Whether standard error is a terminal that can redraw a line.
    static bool isPossible();

    explicit ProgressBar(OndelCore::benchmark::BenchmarkPlan plan);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /// Keeps the latest state; cheap enough for measured loops.
    void note(const OndelCore::benchmark::BenchmarkProgress& progress);
    /// Shows the latest state. A terminal that takes nothing at the moment (Ctrl+S) is left alone.
    void draw(bool stopping);

private:
    const OndelCore::benchmark::BenchmarkPlan m_plan;
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::mutex m_lock;
    std::optional<OndelCore::benchmark::BenchmarkProgress> m_latest;
};

} // namespace TarnwickHost
