#include "OndelCore/platform/volumes/FileSystemAnswers.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/linux/CapabilityWords.h"
#include "OndelCore/platform/volumes/linux/MountedType.h"

#include <algorithm>
#include <bit>

namespace OndelCore::platform {

namespace {

constexpr std::int64_t kibibyte = 1024;
constexpr std::int64_t smallestRequest = 64 * kibibyte;
constexpr std::int64_t largestRequest = 4096 * kibibyte;
constexpr std::int64_t pageSize = 4096;

/// The best size for the device's queue. The size that the device declares is used only if it is a multiple
/// of the page size: some USB bridges declare 65535 sectors.
std::int64_t optimalSizeOfQueue(const std::filesystem::path& queue) {
    const auto declared = readNumber(queue / "optimal_io_size").value_or(0);
    if (declared > 0 && declared % pageSize == 0)
        return declared;
    const auto request = readNumber(queue / "max_sectors_kb").value_or(0) * kibibyte;
    if (request <= 0)
        return 0;
    const auto power = static_cast<std::int64_t>(std::bit_floor(static_cast<std::uint64_t>(request)));
    return std::clamp(power, smallestRequest, largestRequest);
}

std::int64_t optimalSize(const std::optional<Mount>& mount, const FileSystemFacts* facts,
                         const PathFacts& answers, const SystemSources& sources) {
    // The server's preference. The kernel reports one page if the server has none.
    if (facts && facts->reach == FileSystemReach::network)
        return answers.preferredTransfer > pageSize ? answers.preferredTransfer : 0;
    const auto number = mount ? deviceOfMount(*mount) : std::nullopt;
    const auto device = number ? blockDevice(*number, sources.sysfs) : std::nullopt;
    return device ? optimalSizeOfQueue(wholeDevice(*device).folder / "queue") : 0;
}

/// The C library reports 127 for file systems that it does not know.
std::optional<std::int64_t> linkLimit(const PathFacts& answers, const FileSystemFacts* facts) {
    constexpr std::int64_t madeUp = 127;
    if (answers.maxLinkCount != madeUp)
        return answers.maxLinkCount;
    return facts && facts->maxLinkCount > 0 ? std::optional(facts->maxLinkCount) : std::nullopt;
}

} // namespace

std::optional<FileSystemAnswers> askFileSystem(const std::filesystem::path& path,
                                               const SystemSources& sources) {
    const auto& table = sources.mountTable.mounts();
    const auto told = pathFacts(path, PathQuestion::abilities, table, {.patience = sources.patience});
    if (!told || !told->hasSizes)
        return std::nullopt;
    return fileSystemAnswers(*told, mountOf(*told, table), sources);
}

FileSystemAnswers fileSystemAnswers(const PathFacts& told, const std::optional<Mount>& mount,
                                    const SystemSources& sources) {
    FileSystemAnswers answers;
    answers.type = mount ? mountedType(*mount, sources) : std::string();
    const FileSystemFacts* const facts = mount ? factsOfMounted(*mount, answers.type) : nullptr;
    answers.blockSizeBytes = told.blockSize;
    answers.optimalIOSizeBytes = optimalSize(mount, facts, told, sources);
    answers.maxNameLength = told.maxNameLength;
    if (facts && facts->maxNameLength > 0)
        answers.maxNameLength = facts->maxNameLength;
    answers.maxPathLength = told.maxPathLength;
    answers.maxLinkCount = linkLimit(told, facts);
    if (mount)
        answers.capabilities = capabilityWords(facts, *mount, told, sources);
    return answers;
}

} // namespace OndelCore::platform
