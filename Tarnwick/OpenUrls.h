#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A list of URLs sorted by what they mean here.
struct OpenUrls {
    std::optional<std::filesystem::path> folder; ///< the first of the list, without symbolic links
    std::vector<std::filesystem::path> runs; ///< in the order of the list; what they hold is not looked at
    std::set<std::size_t> ignored;           ///< places in the list of what is neither of both

    /// Threads: any; blocks on the file system, for two seconds at most. What has not been answered by then
    /// is a run file if it is named like one; of the others the first counts as a folder.
    static OpenUrls from(const std::vector<std::string>& urls);

    bool isEmpty() const { return !folder && runs.empty(); }
};
