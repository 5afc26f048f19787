#include "OndelCore/platform/PrivateFolder.h"

#include <QByteArray>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

namespace OndelCore::platform {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerOnly = 0700;

/// A real folder, not a link to one, that belongs to this user and that nobody else may enter.
bool isOurs(const fs::path& folder) {
    struct stat status {};
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

std::optional<fs::path> sessionFolder() {
    const fs::path runtime = qgetenv("XDG_RUNTIME_DIR").toStdString();
    if (!runtime.is_absolute() || !isOurs(runtime))
        return std::nullopt;
    const fs::path folder = runtime / "tools.ondel.tarnwick";
    mkdir(folder.c_str(), ownerOnly);
    return isOurs(folder) ? std::optional(folder) : std::nullopt;
}

std::optional<fs::path> madeFolder() {
    std::error_code error;
    const fs::path shared = fs::temp_directory_path(error);
    std::string name = (shared / "tools.ondel.tarnwick-XXXXXX").string();
    if (error || !mkdtemp(name.data()))
        return std::nullopt;
    return name;
}

} // namespace

std::optional<fs::path> privateTemporaryFolder() {
    static const std::optional<fs::path> folder = [] {
        const auto session = sessionFolder();
        return session ? session : madeFolder();
    }();
    // The system may have emptied its temporary folder under a process that runs for weeks.
    if (folder && !isOurs(*folder))
        mkdir(folder->c_str(), ownerOnly);
    return folder && isOurs(*folder) ? folder : std::nullopt;
}

} // namespace OndelCore::platform
