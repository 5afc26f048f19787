#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QPointF>
#include <QStringList>

#include <chrono>
#include <filesystem>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// A finished run for a host application. Its image comes from the views: reportImage.
/// Units: as RunRecord, except for the curves: x in seconds, y in megabytes per second.
/// Threads: any.
struct ONDEL_PUBLIC TarnwickReport {
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
    /// The rates over the time of the test.
    std::vector<QPointF> writeCurve() const;
    std::vector<QPointF> readCurve() const;
    std::optional<QString> sizeLabel() const { return run.sizeLabel; }
    /// "ACME Disk · NVMe"; absent if neither name is known.
    std::optional<QString> drive() const;
    /// The remarks on the figures, worst first, a line each: "Invalid · Sequential read: 0 % of what …".
    QStringList remarks() const;

    /// Writes a run file for the application to open, into a folder that only this user can enter. Within a
    /// process the same run has the same path. Nothing removes the file. Fails: absent.
    std::optional<std::filesystem::path> handoffFile() const;

    /// Writes that file and has the application open it: by the session bus, which starts the application if
    /// it does not run, else by the desktop's own opener. Threads: any; needs no event loop; blocks until the
    /// application has taken the file, for `patience` at most. Fails: false, nobody took it; the file stays.
    bool openInApplication(std::chrono::milliseconds patience = std::chrono::seconds(10)) const;
};

} // namespace TarnwickKit::model
