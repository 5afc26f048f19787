#include "Tarnwick/OpenUrls.h"

#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/FileUrl.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <chrono>

namespace fs = std::filesystem;

namespace {

bool isRunFile(const fs::path& path) {
    const std::string extension = (path.has_filename() ? path : path.parent_path()).extension();
    return extension.size() > 1 && extension.substr(1) == TarnwickKit::model::TarnwickFile::runExtension;
}

} // namespace

OpenUrls OpenUrls::from(const std::vector<std::string>& urls) {
    using namespace OndelCore::platform;
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::seconds totalPatience(2);
    const auto end = Clock::now() + totalPatience;
    OpenUrls sorted;
    for (std::size_t place = 0; place < urls.size(); ++place) {
        const auto path = OndelCore::volumes::localPath(urls[place]);
        const bool isRun = path && isRunFile(*path);
        if (isRun)
            sorted.runs.push_back(*path);
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        const auto facts = path && left.count() > 0
                               ? pathFacts(*path, PathQuestion::place, {.patience = left})
                               : std::nullopt;
        std::optional<fs::path> folder;
        if (facts && facts->isFolder)
            folder = facts->resolved;
        else if (path && !isRun && !facts)
            folder = path; // no answer: it may be a folder
        if (folder && !sorted.folder)
            sorted.folder = folder;
        if (!folder && !isRun)
            sorted.ignored.insert(place);
    }
    return sorted;
}

std::vector<std::string> OpenUrls::ignoredNames(const std::vector<std::string>& urls) const {
    std::vector<std::string> names;
    for (const std::size_t place : ignored) {
        const auto path = OndelCore::volumes::localPath(urls[place]);
        const fs::path last = path && !path->has_filename() ? path->parent_path() : path.value_or("");
        names.push_back(last.has_filename() ? last.filename().string() : urls[place]);
    }
    return names;
}
