#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Folders by descriptor. Where others can write, a path may lead elsewhere by the time it is used. An open
// folder and a name in it do not.

namespace OndelCore::platform {

/// Identifies a file independently of its name. Valid while a descriptor of the file is open: some file
/// systems renumber files that nobody has open.
struct FileIdentity {
    dev_t device = 0;
    ino_t number = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// Fails: absent, with errno set.
std::optional<FileIdentity> identityOf(int descriptor);
/// Of the entry itself: a symbolic link is not followed. Fails: absent, with errno set.
std::optional<FileIdentity> identityOf(int folder, const std::string& name);

/// Opens the folder that `path` leads to: for listing if its permissions allow that, else as a base for the
/// names in it. Fails: none, with errno set.
FileDescriptor openFolder(const std::filesystem::path& path);

/// Opens the folder `name` in `parent`, but no symbolic link and no mount point. If this user owns it and
/// lacks the permissions, they are added. Fails: none, with errno set.
FileDescriptor openInnerFolder(int parent, const std::string& name);

/// Opens the existing file `name` in `folder` by the flags of open(2), without waiting: a pipe that took the
/// file's place would wait for its other end. The descriptor has O_NONBLOCK. Fails: none, with errno set:
/// ELOOP where a symbolic link has the name.
FileDescriptor openInnerFile(int folder, const std::string& name, int flags);

/// The entries of an open folder except "." and "..", in the order of its listing. Fails: the entries read
/// before the error.
std::vector<std::string> namesIn(int folder);

enum class FolderLock { taken, heldElsewhere, notPossible };

/// Locks an open folder until its descriptor is closed. The lock excludes those taken through other
/// descriptors of the folder, by programs of this machine. Does not wait. Not every file system has such
/// locks.
FolderLock lockFolder(int folder);

/// unlinkat(2), or a test's replacement.
using Unlink = std::function<int(int folder, const char* name, int flags)>;
Unlink systemUnlink();

/// Removes everything in an open folder. Symbolic links are removed and not followed; file systems mounted
/// inside are left alone. Entries that cannot be removed are skipped. The number of open descriptors does not
/// depend on the depth. Some FUSE file systems keep an open file under another name; so the last pass over a
/// folder is the one that leaves as many entries as it found. Threads: any. Fails: silently.
void removeContents(int folder, const Unlink& unlink = systemUnlink()) noexcept;

/// Removes an open folder with everything in it. `parent`, `name`: where it was. If it was moved meanwhile it
/// is removed from its new place, and a new folder of that name stays. Threads: any. Fails: silently.
void removeFolder(int folder, int parent, const std::string& name,
                  const Unlink& unlink = systemUnlink()) noexcept;

} // namespace OndelCore::platform
