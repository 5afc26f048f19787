#include "OndelCore/platform/storage/OpenFolders.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <limits>
#include <memory>
#include <new>
#include <set>
#include <string_view>
#include <utility>

namespace OndelCore::platform {

namespace {

constexpr int toList = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

bool isSameMount(int one, int other) {
    struct statx first{};
    struct statx second{};
    if (statx(one, "", AT_EMPTY_PATH, STATX_MNT_ID, &first) == 0 &&
        statx(other, "", AT_EMPTY_PATH, STATX_MNT_ID, &second) == 0 &&
        (first.stx_mask & second.stx_mask & STATX_MNT_ID) != 0)
        return first.stx_mnt_id == second.stx_mnt_id;
    // Before Linux 5.8. Mounts of the same file system cannot be told apart there.
    const auto here = identityOf(one);
    const auto there = identityOf(other);
    return here && there && here->device == there->device;
}

/// fchmod(2) refuses O_PATH descriptors; chmod of their links in /proc works.
void letOwnerIn(int handle) {
    struct stat facts{};
    if (fstat(handle, &facts) == 0 && facts.st_uid == geteuid() && (facts.st_mode & S_IRWXU) != S_IRWXU)
        chmod(("/proc/self/fd/" + std::to_string(handle)).c_str(), S_IRWXU);
}

/// Removes a tree without recursion. It keeps one descriptor, that of the current folder; the names left to
/// remove in the folders above are on the heap.
class TreeRemoval {
public:
    TreeRemoval(int root, const Unlink& unlink)
        : m_root(root)
        , m_unlink(unlink) {}

    void run() {
        enter(FileDescriptor(openat(m_root, ".", toList)), {});
        while (!m_levels.empty()) {
            Level& level = m_levels.back();
            if (level.names.empty() && !list(level)) {
                leave();
                continue;
            }
            const std::string name = std::move(level.names.back());
            level.names.pop_back();
            if (!remove(name))
                level.kept.insert(name);
        }
    }

private:
    struct Level {
        FileIdentity identity;
        std::string name;                 ///< in the level above
        std::vector<std::string> names{}; ///< to be removed in this pass, the last one first
        std::set<std::string> kept{};     ///< could not be removed; each is tried once
        std::size_t entries = std::numeric_limits<std::size_t>::max(); ///< when the pass began
    };

    bool enter(FileDescriptor folder, const std::string& name) {
        const auto identity = folder ? identityOf(folder.get()) : std::nullopt;
        if (!identity)
            return false;
        m_levels.push_back({.identity = *identity, .name = name});
        m_here = std::move(folder);
        return true;
    }

    /// Begins a pass. False if another pass would change nothing.
    bool list(Level& level) const {
        std::vector<std::string> names = namesIn(m_here.get());
        if (names.size() >= level.entries)
            return false;
        level.entries = names.size();
        std::erase_if(names, [&](const std::string& name) { return level.kept.contains(name); });
        std::ranges::reverse(names);
        level.names = std::move(names);
        return !level.names.empty();
    }

    /// True if the entry was removed, or is a folder and was entered.
    bool remove(const std::string& name) {
        if (m_unlink(m_here.get(), name.c_str(), 0) == 0)
            return true;
        if (errno != EISDIR && errno != EPERM) // POSIX has EPERM for a folder
            return false;
        return enter(openInnerFolder(m_here.get(), name), name);
    }

    /// Goes up and removes the folder it comes from. If that folder was moved out of the tree meanwhile, the
    /// walk starts again at the root, a limited number of times.
    void leave() {
        const std::string name = std::move(m_levels.back().name);
        m_levels.pop_back();
        if (m_levels.empty())
            return;
        FileDescriptor above(openat(m_here.get(), "..", toList));
        const auto identity = above ? identityOf(above.get()) : std::nullopt;
        if (identity == m_levels.back().identity) {
            m_here = std::move(above);
            if (m_unlink(m_here.get(), name.c_str(), AT_REMOVEDIR) != 0)
                m_levels.back().kept.insert(name);
        } else {
            m_levels.clear();
            if (m_restarts++ < maxRestarts)
                enter(FileDescriptor(openat(m_root, ".", toList)), {});
        }
    }

    static constexpr int maxRestarts = 16;

    int m_root;
    int m_restarts = 0;
    const Unlink& m_unlink;
    FileDescriptor m_here;
    std::vector<Level> m_levels;
};

/// The current name of an open folder in its open parent. Fails: absent.
std::optional<std::string> nameIn(int above, const FileIdentity& folder) {
    for (std::string& name : namesIn(above))
        if (identityOf(above, name) == folder)
            return std::move(name);
    return std::nullopt;
}

} // namespace

std::optional<FileIdentity> identityOf(int descriptor) {
    struct stat facts{};
    if (fstat(descriptor, &facts) != 0)
        return std::nullopt;
    return FileIdentity{facts.st_dev, facts.st_ino};
}

std::optional<FileIdentity> identityOf(int folder, const std::string& name) {
    struct stat facts{};
    if (fstatat(folder, name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return std::nullopt;
    return FileIdentity{facts.st_dev, facts.st_ino};
}

FileDescriptor openFolder(const std::filesystem::path& path) {
    FileDescriptor folder(open(path.c_str(), toList));
    if (!folder && errno == EACCES)
        folder = FileDescriptor(open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    return folder;
}

FileDescriptor openInnerFolder(int parent, const std::string& name) {
    const FileDescriptor handle(openat(parent, name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!handle)
        return {};
    if (!isSameMount(parent, handle.get())) {
        errno = EXDEV;
        return {};
    }
    letOwnerIn(handle.get());
    return FileDescriptor(openat(handle.get(), ".", toList));
}

/// Older document portals (1.16) open what lies below them by a link in /proc, with the caller's flags, and
/// so call every file a symbolic link if those have O_NOFOLLOW. The kernel opens for O_PATH without asking
/// them, and what is a link indeed cannot be opened by such a descriptor.
FileDescriptor openInnerFile(int folder, const std::string& name, int flags) {
    flags |= O_NONBLOCK | O_CLOEXEC;
    FileDescriptor file(openat(folder, name.c_str(), flags | O_NOFOLLOW));
    if (file || errno != ELOOP)
        return file;
    const FileDescriptor handle(openat(folder, name.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    return FileDescriptor(open(("/proc/self/fd/" + std::to_string(handle.get())).c_str(), flags));
}

std::vector<std::string> namesIn(int folder) {
    // A separate open file description, which has a position of its own.
    FileDescriptor listed(openat(folder, ".", toList));
    const std::unique_ptr<DIR, CloseFolder> stream(listed ? fdopendir(listed.get()) : nullptr);
    if (!stream)
        return {};
    listed.release();
    std::vector<std::string> names;
    // readdir is thread-safe with a DIR for each thread.
    while (const dirent* entry = readdir(stream.get())) { // NOLINT(concurrency-mt-unsafe)
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..")
            names.emplace_back(name);
    }
    return names;
}

FolderLock lockFolder(int folder) {
    while (flock(folder, LOCK_EX | LOCK_NB) != 0)
        if (errno != EINTR)
            return errno == EWOULDBLOCK ? FolderLock::heldElsewhere : FolderLock::notPossible;
    return FolderLock::taken;
}

Unlink systemUnlink() { return ::unlinkat; }

void removeContents(int folder, const Unlink& unlink) noexcept {
    try {
        TreeRemoval(folder, unlink).run();
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): out of memory: the rest stays
    }
}

void removeFolder(int folder, int parent, const std::string& name, const Unlink& unlink) noexcept {
    removeContents(folder, unlink);
    const auto identity = identityOf(folder);
    if (!identity)
        return;
    if (identityOf(parent, name) == identity) {
        unlink(parent, name.c_str(), AT_REMOVEDIR);
        return;
    }
    const FileDescriptor above(openat(folder, "..", toList));
    try {
        if (const auto nameNow = above ? nameIn(above.get(), *identity) : std::nullopt)
            unlink(above.get(), nameNow->c_str(), AT_REMOVEDIR);
    } catch (const std::bad_alloc&) { // NOLINT(bugprone-empty-catch): as above
    }
}

} // namespace OndelCore::platform
