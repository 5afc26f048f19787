#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QPointF>

#include <filesystem>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// A finished run as a host application sees it. Its image is the views' part: reportImage.
/// Units: as RunRecord, but for the curves: x in seconds, y in megabytes per second, ready for a chart.
/// Threads: any.
struct TarnwickReport {
    RunRecord run;

    /// The record's duration is the sum of the tests' durations.
    static TarnwickReport from(const OndelCore::benchmark::BenchmarkResult& result,
                               const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                               const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                               const QDateTime& date, const OndelCore::benchmark::BenchmarkPlan& plan);

    std::optional<double> writeBytesPerSecond() const { return run.writeBps; }
    std::optional<double> writePeakBytesPerSecond() const { return run.writePeakBps; }
    std::optional<double> readBytesPerSecond() const { return run.readBps; }
    std::optional<double> readPeakBytesPerSecond() const { return run.readPeakBps; }
    std::optional<double> randomReadIOPS() const { return run.randomReadIOPS; }
    std::optional<double> randomWriteIOPS() const { return run.randomWriteIOPS; }
    std::optional<double> fileOpsPerSecond() const { return run.fileOpsPerSec; }
    std::vector<QPointF> writeCurve() const;
    std::vector<QPointF> readCurve() const;
    std::optional<QString> sizeLabel() const { return run.sizeLabel; }

    /// Writes the run file, to be opened with the application, into a folder that only this user can enter.
    /// The same run always goes to the same path within a process; nothing removes the file. Fails: absent.
    std::optional<std::filesystem::path> handoffFile() const;
};

} // namespace TarnwickKit::model
