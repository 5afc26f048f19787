#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/capacity/CapacityCourse.h"

#include <QString>

#include <chrono>
#include <mutex>
#include <optional>

namespace TarnwickHost {

/// One test's progress as one line of at most `style.columns` characters: title, bar, percentage, amount and
/// rate, as much of it as fits. With the end unknown (total 0) there is no bar and no percentage.
QString progressLine(const OndelCore::benchmark::BenchmarkProgress& progress,
                     const OndelCore::benchmark::BenchmarkPlan& plan, LineStyle style);

/// A check's progress as one line of at most `style.columns` characters: what it does, how much of the whole
/// check is done, amount, rate and the time left, as much of it as fits.
QString checkLine(const TarnwickKit::model::CapacityCourse& course, LineStyle style);

/// So much of `line` as fits into `columns`.
QString beginningOf(const QString& line, int columns);

/// Writes a line over the last one on the terminal behind standard error; an empty one erases it. A terminal
/// that takes nothing at the moment (Ctrl+S) is left alone.
void replaceLine(const QString& line);

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
    /// Shows the latest state.
    void draw(bool stopping);

private:
    const OndelCore::benchmark::BenchmarkPlan m_plan;
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::mutex m_lock;
    std::optional<OndelCore::benchmark::BenchmarkProgress> m_latest;
};

} // namespace TarnwickHost
