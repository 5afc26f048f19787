#include "OndelCore/platform/volumes/PortalFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

constexpr const char* hostPathAttribute = "user.document-portal.host-path";

/// What the portal passes on unchanged of a folder's attributes. The time of the last change, which no
/// program can set, tells folders apart: two that were changed in the same instant are not found under one
/// path inside and outside of a sandbox.
struct Marks {
    std::int64_t changedSeconds = 0;
    std::uint32_t changedNanoseconds = 0;
    std::uint32_t modifiedNanoseconds = 0;
    std::int64_t modifiedSeconds = 0;
    std::uint64_t size = 0;
    std::uint32_t links = 0;
    std::uint32_t owner = 0;
    std::uint32_t group = 0;

    bool operator==(const Marks&) const = default;
};

/// An answer of a child.
struct HostPath {
    std::array<char, PATH_MAX> bytes{};
    std::size_t length = 0;
};

/// The kernel keeps attributes of FUSE files for a while; the program is asked again.
std::optional<Marks> marksOf(const fs::path& folder, const Waiting& waiting) {
    const auto put = [](const char* path, Marks& marks) {
        struct statx facts{};
        if (statx(AT_FDCWD, path, AT_STATX_FORCE_SYNC, STATX_BASIC_STATS, &facts) != 0 ||
            (facts.stx_mask & STATX_BASIC_STATS) != STATX_BASIC_STATS || !S_ISDIR(facts.stx_mode))
            return false;
        marks = {.changedSeconds = facts.stx_ctime.tv_sec,
                 .changedNanoseconds = facts.stx_ctime.tv_nsec,
                 .modifiedNanoseconds = facts.stx_mtime.tv_nsec,
                 .modifiedSeconds = facts.stx_mtime.tv_sec,
                 .size = facts.stx_size,
                 .links = facts.stx_nlink,
                 .owner = facts.stx_uid,
                 .group = facts.stx_gid};
        return true;
    };
    return askChildrenFor<Marks>({folder}, put, waiting).front();
}

/// Whether both paths lead to one folder. It may be changed between the two looks, so there are some.
bool areSame(const fs::path& one, const fs::path& other, const Waiting& waiting) {
    constexpr int looks = 3;
    for (int look = 0; look < looks; ++look) {
        const auto marks = marksOf(one, waiting);
        if (!marks)
            return false;
        if (marksOf(other, waiting) == marks)
            return true;
    }
    return false;
}

/// The attribute is whatever a program wrote: only an absolute path without detours is taken.
std::optional<fs::path> hostPath(const fs::path& folder, const Waiting& waiting) {
    const auto put = [](const char* path, HostPath& answer) {
        const ssize_t length = getxattr(path, hostPathAttribute, answer.bytes.data(), answer.bytes.size());
        answer.length = length > 0 ? static_cast<std::size_t>(length) : 0;
        return length > 0;
    };
    const auto answer = askChildrenFor<HostPath>({folder}, put, waiting).front();
    if (!answer || answer->length >= answer->bytes.size())
        return std::nullopt;
    const std::string_view bytes(answer->bytes.data(), answer->length);
    const fs::path path(bytes);
    const auto isDetour = [](const fs::path& name) { return name == "." || name == ".."; };
    if (!bytes.starts_with('/') || bytes.find('\0') != std::string_view::npos ||
        std::ranges::any_of(path, isDetour))
        return std::nullopt;
    return path;
}

/// A file system that another user serves leads nowhere.
bool isPortalOfThisUser(const Mount& mount) {
    return mount.type == portalFileSystem &&
           mountOptionValue(mount.superOptions, "user_id") == std::to_string(geteuid());
}

} // namespace

fs::path folderBehindPortal(const fs::path& folder, const std::vector<Mount>& mounts,
                            const Waiting& waiting) {
    if (std::ranges::none_of(mounts, isPortalOfThisUser))
        return folder;
    const auto here = pathFacts(folder, PathQuestion::place, mounts, waiting);
    const auto mount = here ? mountOf(*here, mounts) : std::nullopt;
    if (!mount || !isPortalOfThisUser(*mount))
        return folder;
    const auto named = hostPath(folder, waiting);
    const auto there = named ? pathFacts(*named, PathQuestion::place, mounts, waiting) : std::nullopt;
    if (!there || there->error != 0 || !there->mayWrite)
        return folder;
    const auto itsMount = mountOf(*there, mounts);
    const bool isReal = itsMount && itsMount->type != portalFileSystem;
    return isReal && areSame(folder, *named, waiting) ? *named : folder;
}

fs::path folderBehindPortal(const fs::path& folder, const Waiting& waiting) {
    return folderBehindPortal(folder, mounts(), waiting);
}

} // namespace OndelCore::platform
