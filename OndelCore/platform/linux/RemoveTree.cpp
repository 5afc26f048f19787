#include "OndelCore/platform/FileDescriptor.h"
#include "OndelCore/platform/Storage.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <string>
#include <string_view>

// Everything goes by descriptor and name, never by path: in a folder that others can write to, a path may
// lead elsewhere by the time it is used.

namespace OndelCore::platform {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

bool isSameMount(int one, int other) {
    struct statx first {};
    struct statx second {};
    return statx(one, "", AT_EMPTY_PATH, STATX_MNT_ID, &first) == 0 &&
           statx(other, "", AT_EMPTY_PATH, STATX_MNT_ID, &second) == 0 &&
           first.stx_mnt_id == second.stx_mnt_id;
}

/// Opens a folder even where its own permissions forbid that to its owner. Fails: null.
OpenFolder openFolder(int parent, const char* name) {
    const FileDescriptor handle(openat(parent, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!handle || !isSameMount(parent, handle.get()))
        return nullptr;
    // fchmod(2) takes no O_PATH descriptor; the link of the same descriptor in /proc is the way around.
    const std::string self = "/proc/self/fd/" + std::to_string(handle.get());
    chmod(self.c_str(), S_IRWXU);
    const int descriptor = openat(handle.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    OpenFolder folder(fdopendir(descriptor));
    if (!folder)
        close(descriptor);
    return folder;
}

bool removeEntry(int parent, const char* name);

/// Whether anything went.
bool removeChildren(DIR* folder) {
    bool removedAny = false;
    rewinddir(folder);
    // readdir is safe where each thread has a DIR of its own, as here.
    while (const dirent* entry = readdir(folder)) { // NOLINT(concurrency-mt-unsafe)
        const std::string_view child = entry->d_name;
        if (child != "." && child != "..")
            removedAny |= removeEntry(dirfd(folder), entry->d_name);
    }
    return removedAny;
}

bool removeEntry(int parent, const char* name) {
    if (unlinkat(parent, name, 0) == 0)
        return true;
    if (errno != EISDIR && errno != EPERM) // EPERM: what POSIX names for a folder
        return false;
    // Some file systems skip entries of a listing while others are removed, hence again until nothing goes.
    if (const OpenFolder folder = openFolder(parent, name))
        while (removeChildren(folder.get())) {
        }
    return unlinkat(parent, name, AT_REMOVEDIR) == 0;
}

} // namespace

void removeTree(const std::filesystem::path& path) {
    const auto parentPath = path.has_parent_path() ? path.parent_path() : std::filesystem::path(".");
    const FileDescriptor parent(open(parentPath.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    if (parent)
        removeEntry(parent.get(), path.filename().c_str());
}

} // namespace OndelCore::platform
