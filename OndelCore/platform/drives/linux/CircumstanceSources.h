#pragma once

#include "OndelCore/platform/drives/CircumstanceWatch.h"
#include "OndelCore/platform/drives/SmartBlocks.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <memory>

namespace OndelCore::platform {

/// Where a watch looks: the real system, unless a caller hands in something else.
struct CircumstanceSources {
    SmartSources drives{};
    std::filesystem::path proc = "/proc";
    std::chrono::milliseconds interval{1000};
    std::size_t mostSamples = 4096;
};

/// The watch of `watchCircumstances` with these sources.
std::unique_ptr<CircumstanceWatch> watchCircumstancesIn(const CircumstanceSources& sources, int folder);

} // namespace OndelCore::platform
