#include "OndelCore/platform/volumes/PathFacts.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/volumes/FileSystemFacts.h"
#include "OndelCore/platform/volumes/linux/LetterCase.h"
#include "OndelCore/platform/volumes/linux/XfsGeometry.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <deque>
#include <string_view>
#include <unordered_set>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

/// An optional value that is trivially copyable.
template <typename Value>
struct Told {
    Value value{};
    bool isTold = false;

    void tell(Value told) { *this = {told, true}; }
    template <typename Wanted = Value>
    std::optional<Wanted> asOptional() const {
        return isTold ? std::optional<Wanted>(value) : std::nullopt;
    }
};

/// PathFacts as a child sends them.
struct RawFacts {
    int error = 0;
    bool isFolder = false;
    bool mayWrite = false;
    std::uint64_t mountId = 0;
    std::array<char, PATH_MAX> resolved{}; ///< empty: unknown
    Told<struct statfs> sizes;
    std::int64_t preferredTransfer = 0;
    std::array<long, 3> limits{}; ///< name, path, links as pathconf(3) answers
    Told<bool> userAttributes;
    Told<bool> accessLists;
    Told<long> folderFlags;
    Told<std::uint32_t> xfsGeometryFlags;
    FolderNames names;
};

// --- The questions. This part is async-signal-safe.

void askResolved(const char* path, RawFacts& facts) {
    const int place = open(path, O_PATH | O_CLOEXEC);
    if (place < 0)
        return;
    std::array<char, 40> link{};
    std::string_view prefix = "/proc/self/fd/";
    char* digit = std::copy(prefix.begin(), prefix.end(), link.begin());
    std::array<char, 12> digits{};
    std::size_t count = 0;
    for (int number = place; number > 0 || count == 0; number /= 10)
        digits[count++] = static_cast<char>('0' + number % 10);
    std::reverse_copy(digits.begin(), digits.begin() + static_cast<std::ptrdiff_t>(count), digit);
    const ssize_t length = readlink(link.data(), facts.resolved.data(), facts.resolved.size() - 1);
    if (length <= 0 || facts.resolved[0] != '/')
        facts.resolved[0] = '\0';
    close(place);
}

/// Whether the file system supports attributes of this name; not set if unclear.
void askAttribute(const char* path, const char* name, Told<bool>& keeps) {
    if (getxattr(path, name, nullptr, 0) >= 0 || errno == ENODATA)
        keeps.tell(true);
    else if (errno == EOPNOTSUPP)
        keeps.tell(false);
}

void askFolder(const char* path, RawFacts& facts) {
    const int folder = open(path, O_RDONLY | O_DIRECTORY | O_NONBLOCK | O_CLOEXEC);
    if (folder < 0)
        return;
    long flags = 0;
    if (ioctl(folder, FS_IOC_GETFLAGS, &flags) == 0)
        facts.folderFlags.tell(flags);
    XfsGeometry geometry{};
    const bool isXfs = facts.sizes.isTold && facts.sizes.value.f_type == XFS_SUPER_MAGIC;
    if (isXfs && ioctl(folder, xfsGetGeometry, &geometry) == 0)
        facts.xfsGeometryFlags.tell(geometry.flags);
    facts.names = letterCaseNames(folder);
    close(folder);
}

bool ask(const char* path, PathQuestion question, RawFacts& facts) {
    struct statx place{};
    if (statx(AT_FDCWD, path, 0, STATX_BASIC_STATS | STATX_MNT_ID, &place) != 0) {
        facts.error = errno;
        return true;
    }
    facts.isFolder = S_ISDIR(place.stx_mode);
    facts.mayWrite = access(path, W_OK) == 0;
    facts.mountId = (place.stx_mask & STATX_MNT_ID) ? place.stx_mnt_id : 0;
    facts.preferredTransfer = place.stx_blksize;
    askResolved(path, facts);
    if (question == PathQuestion::place)
        return true;
    struct statfs sizes{};
    if (statfs(path, &sizes) == 0)
        facts.sizes.tell(sizes);
    if (question == PathQuestion::sizes)
        return true;
    facts.limits = {pathconf(path, _PC_NAME_MAX), pathconf(path, _PC_PATH_MAX), pathconf(path, _PC_LINK_MAX)};
    askAttribute(path, "user.ondel", facts.userAttributes);
    askAttribute(path, "system.posix_acl_access", facts.accessLists);
    askFolder(path, facts);
    return true;
}

// --- The answers

void addSizes(const struct statfs& sizes, PathFacts& facts) {
    // Linux counts in fragments; f_bsize is larger on some FUSE and network file systems.
    const auto unit = static_cast<std::uint64_t>(sizes.f_frsize ? sizes.f_frsize : sizes.f_bsize);
    facts.hasSizes = true;
    facts.total = saturatingMultiply(sizes.f_blocks, unit);
    facts.available = saturatingMultiply(sizes.f_bavail, unit);
    facts.blockSize = static_cast<std::int64_t>(unit);
}

std::optional<std::int64_t> limitOf(long value) {
    return value > 0 ? std::optional<std::int64_t>(value) : std::nullopt;
}

PathFacts decoded(const fs::path& path, const RawFacts& raw) {
    PathFacts facts{.error = raw.error,
                    .isFolder = raw.isFolder,
                    .mayWrite = raw.mayWrite,
                    .mountId = raw.mountId,
                    .resolved = raw.resolved[0] ? fs::path(raw.resolved.data()) : path,
                    .preferredTransfer = raw.preferredTransfer,
                    .maxNameLength = limitOf(raw.limits[0]),
                    .maxPathLength = limitOf(raw.limits[1]),
                    .maxLinkCount = limitOf(raw.limits[2]),
                    .keepsUserAttributes = raw.userAttributes.asOptional(),
                    .keepsAccessLists = raw.accessLists.asOptional(),
                    .folderFlags = raw.folderFlags.asOptional<std::int64_t>(),
                    .xfsGeometryFlags = raw.xfsGeometryFlags.asOptional(),
                    .letterCase = raw.names.letterCase,
                    .hasCapitals = raw.names.hasCapitals};
    if (raw.sizes.isTold)
        addSizes(raw.sizes.value, facts);
    return facts;
}

// --- What may hang

constexpr int mostLinks = 40; // as the kernel counts

/// Resolves a path without entering mounts that may hang.
class CarefulWalk {
public:
    explicit CarefulWalk(std::unordered_set<std::string> hanging)
        : m_hanging(std::move(hanging)) {}

    /// Whether the look-up of `path` enters such a mount.
    bool meetsOne(const fs::path& path) {
        m_left.assign(path.begin(), path.end());
        while (!m_left.empty()) {
            const fs::path name = m_left.front();
            m_left.pop_front();
            const Step step = enter(name);
            if (step != Step::further)
                return step == Step::hanging;
        }
        return false;
    }

private:
    enum class Step { further, hanging, end };

    Step enter(const fs::path& name) {
        if (name.empty() || name == ".")
            return Step::further;
        if (name == "/" || name == "..") {
            m_place = name == "/" ? name : m_place.parent_path();
            return m_hanging.contains(m_place.native()) ? Step::hanging : Step::further;
        }
        const fs::path next = m_place / name;
        if (m_hanging.contains(next.native()))
            return Step::hanging;
        struct stat facts{};
        if (fstatat(AT_FDCWD, next.c_str(), &facts, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) != 0)
            return Step::end; // the question itself will fail here too
        if (!S_ISLNK(facts.st_mode)) {
            m_place = next;
            return Step::further;
        }
        std::error_code failed;
        const fs::path target = fs::read_symlink(next, failed);
        if (failed || ++m_links > mostLinks)
            return Step::end;
        m_left.insert(m_left.begin(), target.begin(), target.end());
        return Step::further;
    }

    std::unordered_set<std::string> m_hanging;
    std::deque<fs::path> m_left;
    fs::path m_place = "/";
    int m_links = 0;
};

// The kernel's own file systems, which never hang. Not procfs: its links lead anywhere.
constexpr std::array<std::string_view, 11> kernelTypes = {"sysfs",     "devtmpfs",   "devpts",  "cgroup",
                                                          "cgroup2",   "securityfs", "debugfs", "tracefs",
                                                          "hugetlbfs", "mqueue",     "efivarfs"};

} // namespace

bool mayHang(const Mount& mount) {
    if (mount.type.starts_with("fuse"))
        return true;
    if (std::ranges::find(kernelTypes, mount.type) != kernelTypes.end())
        return false;
    const FileSystemFacts* const facts = fileSystemFacts(fileSystemTypeName(mount.type, mount.source));
    return !facts || facts->reach == FileSystemReach::network;
}

bool mayHang(const fs::path& path, const std::vector<Mount>& mounts) {
    std::unordered_set<std::string> hanging;
    for (const Mount& mount : mounts)
        if (mayHang(mount))
            hanging.insert(mount.mountPoint.native());
    if (hanging.empty())
        return false;
    std::error_code failed;
    const fs::path absolute = fs::absolute(path, failed);
    return !failed && CarefulWalk(std::move(hanging)).meetsOne(absolute);
}

std::optional<PathFacts> pathFacts(const fs::path& path, PathQuestion question,
                                   const std::vector<Mount>& mounts, const Waiting& waiting) {
    RawFacts facts;
    if (!mayHang(path, mounts)) {
        ask(path.c_str(), question, facts);
        return decoded(path, facts);
    }
    const auto put = [question](const char* name, RawFacts& answer) { return ask(name, question, answer); };
    const auto answers = askChildrenFor<RawFacts>({path}, put, waiting);
    return answers.front() ? std::optional(decoded(path, *answers.front())) : std::nullopt;
}

std::optional<PathFacts> pathFacts(const fs::path& path, PathQuestion question, const Waiting& waiting) {
    return pathFacts(path, question, mounts(), waiting);
}

std::vector<std::optional<std::int64_t>> totalSizes(const std::vector<Mount>& mounts,
                                                    const Waiting& waiting) {
    const auto put = [](const char* path, struct statfs& sizes) { return statfs(path, &sizes) == 0; };
    std::vector<fs::path> hanging;
    for (const Mount& mount : mounts)
        if (mayHang(mount))
            hanging.push_back(mount.mountPoint);
    const auto answers = askChildrenFor<struct statfs>(hanging, put, waiting);
    auto next = answers.begin();
    std::vector<std::optional<std::int64_t>> totals;
    for (const Mount& mount : mounts) {
        struct statfs local{};
        std::optional<struct statfs> sizes;
        if (mayHang(mount))
            sizes = *next++;
        else if (put(mount.mountPoint.c_str(), local))
            sizes = local;
        PathFacts facts;
        if (sizes)
            addSizes(*sizes, facts);
        totals.push_back(sizes ? std::optional(facts.total) : std::nullopt);
    }
    return totals;
}

std::optional<Mount> mountOf(const PathFacts& facts, const std::vector<Mount>& mounts) {
    const auto found = std::ranges::find(mounts, facts.mountId, &Mount::id);
    return facts.mountId == 0 || found == mounts.end() ? std::nullopt : std::optional(*found);
}

} // namespace OndelCore::platform
