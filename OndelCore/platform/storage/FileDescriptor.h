#pragma once

#include <unistd.h>

#include <utility>

namespace OndelCore::platform {

/// An open file descriptor. Owner: the object closes it; a negative number, the result of a failed open(2),
/// means none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor() {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }

    explicit operator bool() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }
    /// Gives up ownership: the caller closes it.
    int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor = -1;
};

} // namespace OndelCore::platform
