#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

// Folders by descriptor. In a folder that others can write to, a path may lead elsewhere by the time it is
// used; an open folder and a name in it cannot.

namespace OndelCore::platform {

/// Which file it is, whatever its name. It holds while a descriptor of the file is open: some file systems
/// give a file that nobody holds another number.
struct FileIdentity {
    dev_t device = 0;
    ino_t number = 0;

    bool operator==(const FileIdentity&) const = default;
};

/// Fails: absent, with errno set.
std::optional<FileIdentity> identityOf(int descriptor);
/// Of the entry itself: a symbolic link is not followed. Fails: absent, with errno set.
std::optional<FileIdentity> identityOf(int folder, const std::string& name);

/// Opens the folder that `path` leads to, to list it if its permissions allow that, else to reach what is in
/// it. Fails: none, with errno set.
FileDescriptor openFolder(const std::filesystem::path& path);

/// Opens the folder `name` in `parent`: no symbolic link and no mount. Permissions by which its owner, this
/// user, kept itself out are lifted. Fails: none, with errno set.
FileDescriptor openInnerFolder(int parent, const std::string& name);

/// The entries of an open folder but for "." and "..", in the order of its listing. Fails: what was read by
/// then.
std::vector<std::string> namesIn(int folder);

enum class FolderLock { taken, heldElsewhere, notPossible };

/// Locks an open folder until its descriptor is closed, against whoever asks the same of another descriptor
/// of it. Does not wait. It holds among the programs of one machine; not every file system can do it.
FolderLock lockFolder(int folder);

/// unlinkat(2), or what a test puts in its place.
using Unlink = std::function<int(int folder, const char* name, int flags)>;
Unlink systemUnlink();

/// Removes everything in an open folder. Symbolic links go, what they point to stays; so does whatever
/// another file system, mounted inside, holds. What cannot be removed does not keep the rest. Any depth is
/// removed with a handful of descriptors. A file that comes back under another name, as FUSE file systems let
/// one that is open, ends it: a pass that leaves as many entries as it found is the last.
/// Threads: any. Fails: silently.
void removeContents(int folder, const Unlink& unlink = systemUnlink()) noexcept;

/// Removes an open folder with everything in it. `parent`, `name`: where it was; moved meanwhile, it is
/// removed from where it is now, and whatever has its name now stays. Threads: any. Fails: silently.
void removeFolder(int folder, int parent, const std::string& name,
                  const Unlink& unlink = systemUnlink()) noexcept;

} // namespace OndelCore::platform
