#pragma once

#include "OndelCore/benchmark/BenchmarkTest.h"

#include <QString>

#include <cstdint>

namespace TarnwickKit::model {

/// A test's raw value.
QString name(OndelCore::benchmark::BenchmarkTest test);

/// A test's name for people. `randomBlock`: bytes per random operation, part of the random tests' titles:
/// "Random read (4 KiB)".
QString title(OndelCore::benchmark::BenchmarkTest test, std::int64_t randomBlock);

} // namespace TarnwickKit::model
