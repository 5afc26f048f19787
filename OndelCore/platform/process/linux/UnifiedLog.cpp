// The journal's native protocol, as systemd documents it under "Native Journal Protocol": one datagram is one
// entry, a field is NAME=value and a newline, or, for a value that may hold newlines, NAME, a newline, the
// length in 64 bits little-endian, the value and a newline. An entry too large for a datagram is sent as the
// descriptor of a sealed memory file.

#include "OndelCore/platform/process/UnifiedLog.h"

#include <QByteArray>

#include <endian.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

namespace OndelCore::platform {

namespace {

/// syslog(3) priorities.
char priorityOf(UnifiedLogType type) {
    switch (type) {
    case UnifiedLogType::debug:
        return '7';
    case UnifiedLogType::standard:
        return '5';
    case UnifiedLogType::error:
        return '3';
    case UnifiedLogType::fault:
        return '2';
    }
    return '5';
}

void appendField(std::string& payload, std::string_view name, std::string_view value) {
    payload.append(name);
    if (value.find('\n') == std::string_view::npos) {
        payload.append("=").append(value).append("\n");
        return;
    }
    const std::uint64_t length = htole64(value.size());
    payload.append("\n").append(reinterpret_cast<const char*>(&length), sizeof length);
    payload.append(value).append("\n");
}

std::string payloadOf(const UnifiedLogEntry& entry) {
    std::string payload;
    payload.reserve(128 + entry.text.size());
    appendField(payload, "SYSLOG_IDENTIFIER", entry.subsystem);
    appendField(payload, "PRIORITY", std::string_view(std::string(1, priorityOf(entry.type))));
    appendField(payload, "ONDEL_CATEGORY", entry.category);
    appendField(payload, "ONDEL_LEVEL", entry.level);
    appendField(payload, "MESSAGE", entry.text);
    return payload;
}

} // namespace

UnifiedLog::UnifiedLog(const std::filesystem::path& socket) {
    const std::string& name = socket.native();
    struct stat facts{};
    if (name.size() >= sizeof m_address.sun_path || stat(name.c_str(), &facts) != 0 ||
        !S_ISSOCK(facts.st_mode))
        return;
    m_address.sun_family = AF_UNIX;
    std::memcpy(m_address.sun_path, name.c_str(), name.size() + 1);
    m_socket = FileDescriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    reconnect(); // no path look-up per line
}

bool UnifiedLog::reconnect() const {
    return connect(m_socket.get(), reinterpret_cast<const sockaddr*>(&m_address), sizeof m_address) == 0;
}

bool UnifiedLog::send(const msghdr& header) const {
    const auto sent = [&] { return sendmsg(m_socket.get(), &header, MSG_NOSIGNAL | MSG_DONTWAIT) >= 0; };
    if (sent())
        return true;
    const bool journalRestarted = errno == ECONNREFUSED || errno == ENOTCONN || errno == ECONNRESET;
    return journalRestarted && reconnect() && sent();
}

bool UnifiedLog::isEnabled(UnifiedLogType) const { return static_cast<bool>(m_socket); }

void UnifiedLog::record(const UnifiedLogEntry& entry) const {
    if (!m_socket)
        return;
    const std::string payload = payloadOf(entry);
    iovec piece{const_cast<char*>(payload.data()), payload.size()};
    msghdr header{};
    header.msg_iov = &piece;
    header.msg_iovlen = 1;
    if (!send(header) && (errno == EMSGSIZE || errno == ENOBUFS))
        sendAsFile(payload);
}

void UnifiedLog::sendAsFile(std::string_view payload) const {
    const FileDescriptor file(memfd_create("journal-entry", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!file)
        return;
    while (!payload.empty()) {
        const ssize_t written = write(file.get(), payload.data(), payload.size());
        if (written <= 0)
            return;
        payload.remove_prefix(static_cast<std::size_t>(written));
    }
    if (fcntl(file.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL) != 0)
        return;

    alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))] = {};
    msghdr header{};
    header.msg_control = control;
    header.msg_controllen = sizeof control;
    cmsghdr* rights = CMSG_FIRSTHDR(&header);
    rights->cmsg_level = SOL_SOCKET;
    rights->cmsg_type = SCM_RIGHTS;
    rights->cmsg_len = CMSG_LEN(sizeof(int));
    const int descriptor = file.get();
    std::memcpy(CMSG_DATA(rights), &descriptor, sizeof descriptor);
    send(header);
}

bool isStandardErrorLogged() {
    struct stat facts{};
    if (fstat(STDERR_FILENO, &facts) != 0)
        return false;
    // systemd tells the stream that it connected to the journal by device and inode (systemd.exec(5)).
    return qgetenv("JOURNAL_STREAM") ==
           QByteArray::number(facts.st_dev) + ':' + QByteArray::number(facts.st_ino);
}

} // namespace OndelCore::platform
