#pragma once

#include <sys/types.h>

#include <cerrno>
#include <cstdint>

namespace OndelCore::platform {

/// Keeps transfers through one descriptor out of the system's file cache where the file system supports it. A
/// refusal is not an error: the transfers then go through the cache.
///
/// Threads: one at a time. Owner: the descriptor stays the caller's and must outlive the object.
class CacheBypass {
public:
    CacheBypass() = default;

    /// Asks for the bypass, right after open(2).
    explicit CacheBypass(int descriptor);

    /// Makes one transfer. File systems may require aligned lengths and offsets. A transfer that is refused
    /// for that reason is repeated through the cache; later ones bypass it again. `transfer`: a call with the
    /// result of read(2). Fails: as the call does, errno set.
    template <class Transfer>
    ssize_t perform(Transfer transfer) {
        const ssize_t moved = transfer();
        if (moved >= 0 || !m_isOn || !isRefusal(errno)) [[likely]]
            return moved;
        ++m_refusedTransfers;
        suspend();
        const ssize_t movedThroughCache = transfer();
        const int error = errno;
        resume();
        errno = error;
        return movedThroughCache;
    }

    /// Whether the file system went along with the bypass when it was asked.
    bool isOn() const { return m_isOn; }
    /// How many transfers it refused all the same.
    std::int64_t refusedTransfers() const { return m_refusedTransfers; }

private:
    static bool isRefusal(int error);
    void suspend() const;
    void resume() const;

    int m_descriptor = -1;
    int m_statusFlags = 0; ///< of the descriptor without the bypass
    bool m_isOn = false;
    std::int64_t m_refusedTransfers = 0;
};

} // namespace OndelCore::platform
