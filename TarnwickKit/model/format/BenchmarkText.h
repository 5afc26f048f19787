#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/BenchmarkTest.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <exception>
#include <optional>

namespace TarnwickKit::model {

/// A test's raw value.
ONDEL_PUBLIC QString name(OndelCore::benchmark::BenchmarkTest test);

/// A test's name for people. `randomBlock`: bytes per random operation, part of the random tests' titles:
/// "Random read (4 KiB)".
ONDEL_PUBLIC QString title(OndelCore::benchmark::BenchmarkTest test, std::int64_t randomBlock);
/// The same where there is little room: "Random read".
ONDEL_PUBLIC QString shortTitle(OndelCore::benchmark::BenchmarkTest test);

/// The unit of a test's rate: "MB/s", "IOPS", "files/s".
ONDEL_PUBLIC QString rateUnit(OndelCore::benchmark::BenchmarkTest test);
/// A test's rate as a figure without its unit. `rate`: bytes or operations per second.
ONDEL_PUBLIC QString rateFigure(OndelCore::benchmark::BenchmarkTest test, double rate);

/// The figures of many operations' latency, one text each: "p99 0.31 ms", "worst 12 ms".
ONDEL_PUBLIC QStringList latencyFigures(const OndelCore::benchmark::Latency& latency);

/// A test's headline figure without its unit; absent if the test did not run.
ONDEL_PUBLIC std::optional<QString> headline(const OndelCore::benchmark::BenchmarkResult& result,
                                             OndelCore::benchmark::BenchmarkTest test);

/// An error as a sentence for people.
ONDEL_PUBLIC QString describe(const std::exception& error);
/// What an error of the system probably means for a run, as a sentence for people; "" where `describe` says
/// all that there is to say.
ONDEL_PUBLIC QString explain(const std::exception& error);

} // namespace TarnwickKit::model
