#pragma once

#include "OndelCore/Export.h"

#include <array>
#include <optional>
#include <string_view>

namespace OndelCore::benchmark {

/// The five tests, in the order in which a run executes them.
enum class BenchmarkTest { sequentialWrite, sequentialRead, randomRead, randomWrite, fileOps };

/// In the order of a run.
inline constexpr std::array allBenchmarkTests{BenchmarkTest::sequentialWrite, BenchmarkTest::sequentialRead,
                                              BenchmarkTest::randomRead, BenchmarkTest::randomWrite,
                                              BenchmarkTest::fileOps};

/// The case's name ("sequentialWrite"), for files and command lines.
ONDEL_PUBLIC std::string_view rawValue(BenchmarkTest test);

/// The test with exactly this raw value (case-sensitive), or absent.
ONDEL_PUBLIC std::optional<BenchmarkTest> benchmarkTest(std::string_view rawValue);

} // namespace OndelCore::benchmark
