#pragma once

#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace OndelCore::benchmark {

/// Picks the folder to measure in, when people name a volume that they may not write to.
/// Threads: any; the functions keep no state.
class BenchmarkTarget {
public:
    BenchmarkTarget() = delete;

    /// What is asked of the system. `isWritable`: whether the permissions allow writing there.
    struct Lookup {
        std::function<bool(const std::filesystem::path&)> isWritable = mayWrite;
        std::function<std::optional<platform::Mount>(const std::filesystem::path&)> mountOfPath =
            platform::mountOfPath;
    };

    /// `path` itself where it may be written to and is not "/", else the root of its volume where that may
    /// be, else `home` where it lies on the same volume or the volume is the root file system, else `path`
    /// all the same: the run will then say that it is not writable.
    static std::filesystem::path folder(const std::filesystem::path& path, const std::filesystem::path& home,
                                        const Lookup& system);
    static std::filesystem::path folder(const std::filesystem::path& path, const std::filesystem::path& home);

private:
    static bool mayWrite(const std::filesystem::path& path);
};

} // namespace OndelCore::benchmark
