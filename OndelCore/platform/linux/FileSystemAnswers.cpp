#include "OndelCore/platform/FileSystemAnswers.h"

#include "OndelCore/platform/BlockDevices.h"
#include "OndelCore/platform/linux/CapabilityWords.h"
#include "OndelCore/platform/linux/MountedType.h"

#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <algorithm>
#include <bit>

namespace OndelCore::platform {

namespace {

constexpr std::int64_t kibibyte = 1024;
constexpr std::int64_t smallestRequest = 64 * kibibyte;
constexpr std::int64_t largestRequest = 4096 * kibibyte;
constexpr std::int64_t pageSize = 4096;

/// What the device's queue takes best. The size that the device itself declares is believed where it is
/// made of whole pages: USB bridges are known to declare 65535 sectors.
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

/// A server's own word. A single page is what the kernel puts where there is none.
std::int64_t optimalSizeOfServer(const std::filesystem::path& path) {
    struct stat file {};
    return stat(path.c_str(), &file) == 0 && file.st_blksize > pageSize ? file.st_blksize : 0;
}

std::int64_t optimalSize(const std::optional<Mount>& mount, const FileSystemFacts* facts,
                         const std::filesystem::path& path, const SystemSources& sources) {
    if (facts && facts->reach == FileSystemReach::network)
        return optimalSizeOfServer(path);
    const auto number = mount ? deviceOfMount(*mount) : std::nullopt;
    const auto device = number ? blockDevice(*number, sources.sysfs) : std::nullopt;
    return device ? optimalSizeOfQueue(wholeDevice(*device).folder / "queue") : 0;
}

std::optional<std::int64_t> limit(const std::filesystem::path& path, int name) {
    const long value = pathconf(path.c_str(), name);
    return value > 0 ? std::optional<std::int64_t>(value) : std::nullopt;
}

/// The C library answers 127 for each file system that it does not know.
std::optional<std::int64_t> linkLimit(const std::filesystem::path& path, const FileSystemFacts* facts) {
    constexpr std::int64_t madeUp = 127;
    if (const auto asked = limit(path, _PC_LINK_MAX); asked != madeUp)
        return asked;
    return facts && facts->maxLinkCount > 0 ? std::optional(facts->maxLinkCount) : std::nullopt;
}

} // namespace

std::optional<FileSystemAnswers> askFileSystem(const std::filesystem::path& path,
                                               const SystemSources& sources) {
    struct statvfs sizes {};
    if (statvfs(path.c_str(), &sizes) != 0)
        return std::nullopt;
    const auto mount = mountOfPathIn(sources.mountTable, path);
    FileSystemAnswers answers;
    answers.type = mount ? mountedType(*mount, sources) : std::string();
    const FileSystemFacts* const facts = fileSystemFacts(answers.type);
    answers.blockSizeBytes = static_cast<std::int64_t>(sizes.f_frsize ? sizes.f_frsize : sizes.f_bsize);
    answers.optimalIOSizeBytes = optimalSize(mount, facts, path, sources);
    answers.maxNameLength = limit(path, _PC_NAME_MAX);
    answers.maxPathLength = limit(path, _PC_PATH_MAX);
    answers.maxLinkCount = linkLimit(path, facts);
    if (mount && facts)
        answers.capabilities = capabilityWords(*facts, *mount, path, sources);
    return answers;
}

} // namespace OndelCore::platform
