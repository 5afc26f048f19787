#include "OndelCore/platform/storage/PrivateFolder.h"

#include <QByteArray>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <mutex>
#include <string>
#include <string_view>
#include <system_error>

namespace OndelCore::platform {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerOnly = 0700;
constexpr std::string_view folderName = "tools.ondel.tarnwick";

/// A folder, not a link to one, that belongs to this user and that no other user may enter.
bool isOurs(const fs::path& folder) {
    struct stat status{};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)) == ownerOnly;
}

std::optional<fs::path> sessionFolder() {
    const fs::path runtime = qgetenv("XDG_RUNTIME_DIR").toStdString();
    if (!runtime.is_absolute() || !isOurs(runtime))
        return std::nullopt;
    const fs::path folder = runtime / folderName;
    mkdir(folder.c_str(), ownerOnly);
    return isOurs(folder) ? std::optional(folder) : std::nullopt;
}

/// Another user can mount a FUSE file system in a shared folder, and it can report any owner.
bool isMounted(const fs::path& folder, const fs::path& parent) {
    struct stat here{};
    struct stat above{};
    return lstat(folder.c_str(), &here) != 0 || stat(parent.c_str(), &above) != 0 ||
           here.st_dev != above.st_dev;
}

/// The folder that an earlier process of this user made. All processes agree on the first by name. Its name
/// could not be guessed before it was made, and no other user can replace it.
std::optional<fs::path> earlierFolder(const fs::path& shared, const std::string& prefix) {
    std::optional<fs::path> first;
    std::error_code error;
    for (fs::directory_iterator entry(shared, error), end; !error && entry != end; entry.increment(error)) {
        const fs::path& path = entry->path();
        const bool isEarlier =
            path.filename().native().starts_with(prefix) && isOurs(path) && !isMounted(path, shared);
        if (isEarlier && (!first || path < *first))
            first = path;
    }
    return first;
}

std::optional<fs::path> folderInSharedPlace() {
    std::error_code error;
    const fs::path shared = fs::temp_directory_path(error);
    if (error || !shared.is_absolute()) // a relative path would depend on the working folder
        return std::nullopt;
    const std::string prefix = std::string(folderName) + "-";
    if (auto earlier = earlierFolder(shared, prefix))
        return earlier;
    std::string made = shared / (prefix + "XXXXXX");
    return mkdtemp(made.data()) ? std::optional<fs::path>(made) : std::nullopt;
}

} // namespace

std::optional<fs::path> privateTemporaryFolder() {
    static std::mutex lock;
    static std::optional<fs::path> folder;
    const std::lock_guard guard(lock);
    // The system may empty its temporary folder while a process runs for weeks.
    if (!folder || !isOurs(*folder)) {
        const auto session = sessionFolder();
        folder = session ? session : folderInSharedPlace();
    }
    return folder;
}

} // namespace OndelCore::platform
