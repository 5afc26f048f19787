#pragma once

#include "OndelCore/platform/volumes/Mounts.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace OndelCore::benchmark {

/// What BenchmarkTarget asks of the system; tests answer instead. For this project alone.
struct TargetLookup {
    /// Whether the permissions allow writing there.
    std::function<bool(const std::filesystem::path&)> isWritable;
    std::function<std::optional<platform::Mount>(const std::filesystem::path&)> mountOfPath =
        platform::mountOfPath;
};

/// See BenchmarkTarget::folder.
std::filesystem::path targetFolder(const std::filesystem::path& path, const std::filesystem::path& home,
                                   const TargetLookup& system);

} // namespace OndelCore::benchmark
