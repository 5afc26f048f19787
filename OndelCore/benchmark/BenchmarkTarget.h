#pragma once

#include "OndelCore/Export.h"

#include <filesystem>

namespace OndelCore::benchmark {

/// Picks the folder to measure in, when people name a volume that they may not write to.
/// Threads: any; the functions keep no state.
class ONDEL_PUBLIC BenchmarkTarget {
public:
    BenchmarkTarget() = delete;

    /// `path` itself where it may be written to and is not "/", else the root of its volume where that may
    /// be, else `home` where it lies on the same volume or the volume is the root file system, else `path`
    /// all the same: the run will then say that it is not writable.
    static std::filesystem::path folder(const std::filesystem::path& path, const std::filesystem::path& home);
};

} // namespace OndelCore::benchmark
