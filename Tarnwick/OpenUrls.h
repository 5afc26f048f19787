#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A list of URLs sorted by what they refer to.
struct OpenUrls {
    std::optional<std::filesystem::path> folder; ///< the first one, with symbolic links resolved
    std::vector<std::filesystem::path> runs;     ///< in the order of the list; their content is not read
    std::set<std::size_t> ignored;               ///< indices of the others

    /// Threads: any; blocks on the file system for two seconds at most. Without an answer by then, the file
    /// extension decides on run files, and anything else counts as a folder.
    static OpenUrls from(const std::vector<std::string>& urls);

    /// Names for people of those that are ignored: the last parts of paths, else the URLs.
    std::vector<std::string> ignoredNames(const std::vector<std::string>& urls) const;

    bool isEmpty() const { return !folder && runs.empty(); }
};
