#include "OndelCore/benchmark/WorkingFolder.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/OpenFolders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <vector>

namespace OndelCore::benchmark {

namespace {

/// False when it is in use.
bool removeOrphan(int parent, const std::string& name) {
    const platform::FileDescriptor folder = platform::openInnerFolder(parent, name);
    if (!folder)
        unlinkat(parent, name.c_str(), 0); // a file or a link: nothing of ours, but with our mark
    else if (platform::lockFolder(folder.get()) == platform::FolderLock::heldElsewhere)
        return false;
    else
        platform::removeFolder(folder.get(), parent, name);
    return true;
}

} // namespace

// Between making the folder and opening it, somebody else can put another one in its place, and between
// opening and locking it a sweep can take it for a leftover. Either is noticed here, and another name tried.
WorkingFolder::WorkingFolder(int parent, uid_t owner)
    : m_parent(parent) {
    // Whoever exchanges folders without a pause wins several times in a row, more often on a busy machine.
    constexpr int attempts = 100;
    int error = 0;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        m_name = std::string(namePrefix) + platform::newUuid();
        if (mkdirat(parent, m_name.c_str(), S_IRWXU) != 0)
            throw std::system_error(errno, std::generic_category(), "mkdir");
        m_folder = platform::openInnerFolder(parent, m_name);
        error = m_folder ? ESTALE : errno;
        if (m_folder && isTaken(owner))
            return;
        unlinkat(parent, m_name.c_str(), AT_REMOVEDIR);
    }
    throw std::system_error(error, std::generic_category(), "open");
}

/// Whether the open folder is the one just made, or at least an empty one of our own, and nobody else's from
/// now on.
bool WorkingFolder::isTaken(uid_t owner) const {
    struct stat facts{};
    if (fstat(m_folder.get(), &facts) != 0 || facts.st_uid != owner ||
        platform::lockFolder(m_folder.get()) == platform::FolderLock::heldElsewhere)
        return false;
    if ((facts.st_mode & (S_IRWXG | S_IRWXO)) != 0)
        fchmod(m_folder.get(), S_IRWXU); // fails where the mount decides on permissions
    const auto identity = platform::identityOf(m_folder.get());
    return platform::namesIn(m_folder.get()).empty() && identity &&
           platform::identityOf(m_parent, m_name) == identity;
}

WorkingFolder::~WorkingFolder() { platform::removeFolder(m_folder.get(), m_parent, m_name); }

std::size_t WorkingFolder::removeOrphansIn(const std::filesystem::path& parent) {
    const platform::FileDescriptor folder = platform::openFolder(parent);
    const std::vector<std::string> names = platform::namesIn(folder.get());
    const auto isInUse = [&](const std::string& name) {
        return name.starts_with(namePrefix) && !removeOrphan(folder.get(), name);
    };
    return static_cast<std::size_t>(std::ranges::count_if(names, isInUse));
}

} // namespace OndelCore::benchmark
