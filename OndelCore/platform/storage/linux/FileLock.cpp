#include "OndelCore/platform/storage/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <thread>
#include <utility>

namespace OndelCore::platform {

namespace {

/// Refuses a link, a pipe or a device in the file's place.
FileDescriptor openRegular(const std::filesystem::path& path) {
    constexpr mode_t ownerOnly = 0600;
    FileDescriptor file(
        open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, ownerOnly));
    struct stat facts{};
    return file && fstat(file.get(), &facts) == 0 && S_ISREG(facts.st_mode) ? std::move(file)
                                                                            : FileDescriptor();
}

} // namespace

// flock(2) has no time limit, so the call that does not wait is repeated.
FileLock::FileLock(const std::filesystem::path& path, std::chrono::milliseconds patience)
    : m_file(openRegular(path)) {
    constexpr std::chrono::milliseconds step(2);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (m_file && !m_isHeld) {
        m_isHeld = flock(m_file.get(), LOCK_EX | LOCK_NB) == 0;
        const bool mayComeFree = !m_isHeld && (errno == EWOULDBLOCK || errno == EINTR);
        if (!mayComeFree || std::chrono::steady_clock::now() >= end)
            return;
        std::this_thread::sleep_for(step);
    }
}

} // namespace OndelCore::platform
