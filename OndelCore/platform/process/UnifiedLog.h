#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <sys/socket.h>
#include <sys/un.h>

#include <filesystem>
#include <string_view>

namespace OndelCore::platform {

enum class UnifiedLogType { debug, standard, error, fault };

/// One text for the system-wide log. The views live as long as the call that takes them.
struct UnifiedLogEntry {
    std::string_view subsystem; ///< which program: "tools.ondel.tarnwick"
    std::string_view category;  ///< which of its areas: "app"
    std::string_view level;     ///< the level's own name: "notice"
    UnifiedLogType type = UnifiedLogType::standard;
    std::string_view text; ///< public as it stands
};

/// The system-wide log that collects the lines of all programs: on Linux the systemd journal, spoken to in
/// its native datagram protocol. A system without a journal takes nothing. Threads: any. Fails: silently; a
/// line that the journal has no room for right now is dropped, so that no caller ever waits.
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

/// Whether what this process writes to standard error ends in the system-wide log, as where a desktop has
/// started it: nothing private belongs there. Threads: any.
bool isStandardErrorLogged();

} // namespace OndelCore::platform
