#pragma once

#include "OndelCore/benchmark/EngineEnvironment.h"
#include "OndelCore/platform/drives/DeviceCache.h"
#include "OndelCore/platform/storage/FileExtents.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace OndelCore::capacity {

/// What a check asks of the machine. The defaults are the machine; a test bends what it needs.
struct CheckEnvironment : benchmark::EngineEnvironment {
    /// How long a file becomes. FAT takes less than 4 GiB.
    std::int64_t fileBytes = std::int64_t{1} << 30;
    std::function<void(int folder)> dropDeviceCache = platform::dropDeviceCache;
    std::function<bool(int descriptor, std::int64_t length)> reserveSpace = platform::reserveSpace;
    std::function<bool(int descriptor)> lacksSparseFiles = platform::lacksSparseFiles;
    std::function<bool(int descriptor)> spreadsSparseFiles = platform::spreadsSparseFiles;
    std::function<std::vector<platform::FileExtent>(int descriptor, std::size_t most)> fileExtents =
        platform::fileExtents;
};

} // namespace OndelCore::capacity
