#include "OndelCore/volumes/VolumeAccess.h"

#include "OndelCore/platform/FileDescriptor.h"
#include "OndelCore/platform/Uuid.h"

#include <fcntl.h>
#include <unistd.h>

namespace OndelCore::volumes {

bool VolumeAccess::isWritable(const std::filesystem::path& folder) {
    const auto probe = folder / (".ondel-writeprobe-" + platform::newUuid());
    constexpr char byte = 0x46;
    ssize_t written = 0;
    {
        const platform::FileDescriptor file(
            open(probe.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
        if (!file)
            return false;
        written = write(file.get(), &byte, 1);
        fsync(file.get());
    }
    unlink(probe.c_str());
    return written == 1;
}

} // namespace OndelCore::volumes
