#include "OndelCore/benchmark/DataFilePlace.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace OndelCore::benchmark {

platform::FileDescriptor DataFilePlace::open(int flags) {
    constexpr const char* name = "data.bin";
    platform::FileDescriptor file;
    if ((flags & O_CREAT) != 0)
        file = platform::FileDescriptor(
            openat(m_folder, name, flags | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    else
        file = platform::openInnerFile(m_folder, name, flags);
    if (!file)
        return file;
    const auto identity = platform::identityOf(file.get());
    if ((flags & O_CREAT) != 0) {
        m_identity = identity;
        m_held = platform::FileDescriptor(openat(m_folder, name, O_PATH | O_NOFOLLOW | O_CLOEXEC));
    }
    if (!identity || identity != m_identity) {
        file = platform::FileDescriptor();
        errno = ESTALE;
        return file;
    }
    fcntl(file.get(), F_SETFL, flags);
    return file;
}

} // namespace OndelCore::benchmark
