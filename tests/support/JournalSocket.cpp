#include "support/JournalSocket.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cstring>
#include <system_error>
#include <vector>

using OndelCore::platform::FileDescriptor;

namespace test {

JournalSocket::JournalSocket() { open(); }

void JournalSocket::close() {
    m_socket = FileDescriptor();
    std::filesystem::remove(path());
}

void JournalSocket::open() {
    m_socket = FileDescriptor(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path().c_str(), sizeof address.sun_path - 1);
    if (bind(m_socket.get(), reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
        throw std::system_error(errno, std::generic_category(), "bind");
}

std::optional<std::string> JournalSocket::take() {
    std::vector<char> bytes(256 * 1024); // above what a datagram may hold by default
    iovec piece{bytes.data(), bytes.size()};
    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr header{};
    header.msg_iov = &piece;
    header.msg_iovlen = 1;
    header.msg_control = control;
    header.msg_controllen = sizeof control;
    const ssize_t length = recvmsg(m_socket.get(), &header, MSG_DONTWAIT | MSG_CMSG_CLOEXEC);
    if (length < 0)
        return std::nullopt;
    const cmsghdr* rights = CMSG_FIRSTHDR(&header);
    if (!rights)
        return std::string(bytes.data(), static_cast<std::size_t>(length));
    int descriptor = -1;
    std::memcpy(&descriptor, CMSG_DATA(rights), sizeof descriptor);
    const FileDescriptor file(descriptor);
    struct stat facts{};
    fstat(file.get(), &facts);
    std::string text(static_cast<std::size_t>(facts.st_size), '\0');
    if (pread(file.get(), text.data(), text.size(), 0) != facts.st_size)
        throw std::system_error(errno, std::generic_category(), "pread");
    return text;
}

} // namespace test
