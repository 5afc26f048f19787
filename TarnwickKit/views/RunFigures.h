#pragma once

#include <QObject>
#include <QtNumeric>
#include <QtQml/qqmlregistration.h>

namespace OndelCore::benchmark {
struct BenchmarkResult;
}

namespace TarnwickKit::views {

/// The headline figures of a finished run, as the views show them.
/// Units: bytes per second, operations per second; not a number where there is none.
struct RunFigures {
    Q_GADGET
    QML_VALUE_TYPE(runFigures)
    Q_PROPERTY(double writeBps MEMBER writeBps CONSTANT)
    Q_PROPERTY(double writePeakBps MEMBER writePeakBps CONSTANT)
    Q_PROPERTY(double writeMinBps MEMBER writeMinBps CONSTANT)
    Q_PROPERTY(double readBps MEMBER readBps CONSTANT)
    Q_PROPERTY(double readPeakBps MEMBER readPeakBps CONSTANT)
    Q_PROPERTY(double readMinBps MEMBER readMinBps CONSTANT)
    Q_PROPERTY(double randomReadIOPS MEMBER randomReadIOPS CONSTANT)
    Q_PROPERTY(double randomWriteIOPS MEMBER randomWriteIOPS CONSTANT)
    Q_PROPERTY(double fileOpsPerSec MEMBER fileOpsPerSec CONSTANT)
    Q_PROPERTY(double randomBlock MEMBER randomBlock CONSTANT)

public:
    static inline const double none = qQNaN();

    double writeBps = none;
    double writePeakBps = none;
    double writeMinBps = none;
    double readBps = none;
    double readPeakBps = none;
    double readMinBps = none;
    double randomReadIOPS = none;
    double randomWriteIOPS = none;
    double fileOpsPerSec = none;
    double randomBlock = 4096; ///< bytes

    static RunFigures of(const OndelCore::benchmark::BenchmarkResult& result);
};

} // namespace TarnwickKit::views
