#include "TarnwickHost/Place.h"

#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/platform/volumes/PortalFolder.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"

#include <cerrno>
#include <chrono>
#include <string_view>

using namespace OndelCore::volumes;
using OndelCore::benchmark::BenchmarkEngine;

namespace TarnwickHost {

std::filesystem::path folderTo(Purpose purpose, const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError(purpose == Purpose::measure ? HostUsage::tr("a FOLDER to measure is missing")
                                                     : HostUsage::tr("a FOLDER to check is missing"));
    if (line.operands().size() > 1)
        throw UsageError(
            HostUsage::tr("one FOLDER at a time, not also %1").arg(inQuotes(line.operands().at(1))));
    const std::string_view folder = line.operands().front();
    if (folder.empty())
        throw UsageError(HostUsage::tr("the FOLDER's name is empty"));

    const auto [error, isFolder, _] = look(folder);
    if (error == 0 && !isFolder)
        throw UsageError(HostFiles::tr("%1 is not a folder").arg(inQuotes(folder)));
    if (error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP)
        throw UsageError(lookUpFailure(folder, error));
    return OndelCore::platform::folderBehindPortal(folder);
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
        complain(HostFiles::tr("Files of another run in this folder are in use and were not removed."));
}

} // namespace TarnwickHost
