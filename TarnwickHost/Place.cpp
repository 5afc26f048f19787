#include "TarnwickHost/Place.h"

#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "TarnwickHost/Output.h"

#include <cerrno>
#include <chrono>
#include <string>
#include <system_error>

using namespace OndelCore::volumes;
using OndelCore::benchmark::BenchmarkEngine;

namespace TarnwickHost {

std::filesystem::path folderTo(std::string_view purpose, const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FOLDER to " + std::string(purpose) + " is missing");
    if (line.operands().size() > 1)
        throw UsageError("one FOLDER at a time, not also " + quoted(line.operands().at(1)));
    const std::string_view folder = line.operands().front();
    if (folder.empty())
        throw UsageError("the FOLDER's name is empty");

    const auto [error, isFolder] = look(folder);
    if (error == 0 && !isFolder)
        throw UsageError(quoted(folder) + " is not a folder");
    if (error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP)
        throw UsageError(quoted(folder) + ": " + std::generic_category().message(error));
    return folder;
}

RunPlace placeOf(const std::filesystem::path& folder) {
    const OndelCore::platform::SystemSources sources;
    return {.folder = std::filesystem::absolute(folder),
            .volume = loadVolumeInfo(Location::local(folder), sources),
            .capabilities = probeCapabilities(Location::local(folder), sources)};
}

void sweep(const std::filesystem::path& folder) {
    constexpr std::chrono::seconds patience{1};
    if (BenchmarkEngine::cleanupOrphans(folder, patience) > 0)
        complain("Files of another run in this folder are in use and were not removed.");
}

} // namespace TarnwickHost
