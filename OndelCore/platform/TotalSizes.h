#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

namespace OndelCore::platform {

struct SizeQuestion {
    std::filesystem::path mountPoint;
    bool mayBlock = false; ///< a server or a program answers, or does not
};

using SizeAnswer = std::function<std::optional<std::int64_t>(const std::filesystem::path&)>;

/// The capacity of the volume mounted at `path`. Units: bytes. Fails: absent.
std::optional<std::int64_t> totalSize(const std::filesystem::path& path);

/// The capacities, in the questions' order. Those that may block are asked by child processes, and what has
/// no answer after `patience` is absent. A question that hangs is not put again while it hangs.
/// Threads: any. Owner: a child that hangs keeps nothing of this process open and does not keep it from
/// ending.
std::vector<std::optional<std::int64_t>> totalSizes(const std::vector<SizeQuestion>& questions,
                                                    std::chrono::milliseconds patience,
                                                    const SizeAnswer& answer = totalSize);

} // namespace OndelCore::platform
