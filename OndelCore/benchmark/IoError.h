#pragma once

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/platform/process/SystemCalls.h"

#include <string>
#include <string_view>

namespace OndelCore::benchmark {

/// The error of a system call that has just failed: `prefix` names it, the system's wording follows.
inline BenchmarkError ioError(std::string_view prefix, int error) {
    return BenchmarkError(BenchmarkError::Io{std::string(prefix) + platform::errorText(error), error});
}

} // namespace OndelCore::benchmark
