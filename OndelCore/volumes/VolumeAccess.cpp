#include "OndelCore/volumes/VolumeAccess.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "OndelCore/platform/volumes/PathFacts.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

namespace OndelCore::volumes {

bool VolumeAccess::isWritable(const std::filesystem::path& folder) {
    if (!platform::pathFacts(folder)) // a thread that enters a hanging volume cannot be ended
        return false;
    const platform::FileDescriptor opened = platform::openFolder(folder);
    return opened && ownerOfNewFiles(opened.get());
}

std::optional<uid_t> VolumeAccess::ownerOfNewFiles(int folder) {
    const std::string probe = ".ondel-writeprobe-" + platform::newUuid();
    constexpr char byte = 0x46;
    struct stat facts{};
    bool isProved = false;
    {
        const platform::FileDescriptor file(
            openat(folder, probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!file)
            return std::nullopt;
        isProved = write(file.get(), &byte, 1) == 1 && fstat(file.get(), &facts) == 0;
        fsync(file.get());
    }
    unlinkat(folder, probe.c_str(), 0);
    return isProved ? std::optional(facts.st_uid) : std::nullopt;
}

} // namespace OndelCore::volumes
