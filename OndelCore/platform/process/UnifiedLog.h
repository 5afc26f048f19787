#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <filesystem>
#include <string_view>

namespace OndelCore::platform {

enum class UnifiedLogType { debug, standard, error, fault };

/// One entry for the system-wide log. The views must be valid for the call only.
struct UnifiedLogEntry {
    std::string_view subsystem; ///< the program: "tools.ondel.tarnwick"
    std::string_view category;  ///< an area of the program: "app"
    std::string_view level;     ///< the level's own name: "notice"
    UnifiedLogType type = UnifiedLogType::standard;
    std::string_view text; ///< shown unchanged
};

/// The system-wide log of all programs: on Linux the systemd journal, in its native datagram protocol.
/// Without a journal, entries are discarded. Threads: any; never blocks. Fails: silently; an entry is dropped
/// if the journal's queue is full.
class UnifiedLog {
public:
    explicit UnifiedLog(const std::filesystem::path& socket = "/run/systemd/journal/socket");

    bool isEnabled(UnifiedLogType type) const;
    void record(const UnifiedLogEntry& entry) const;

private:
    bool reconnect() const;
    bool send(const msghdr& header) const;
    void sendAsFile(std::string_view payload) const;

    FileDescriptor m_socket;
    sockaddr_un m_address{};
};

/// Whether standard error is connected to the system-wide log, as in a process that a desktop started.
/// Nothing private may be written to it then. Threads: any.
bool isStandardErrorLogged();

} // namespace OndelCore::platform
