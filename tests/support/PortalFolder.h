#pragma once

#include "support/FuseServer.h"

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

namespace test {

/// A folder as the desktop's document portal hands it over: a FUSE file system with the attributes of the
/// folder behind it and of its file "file", which cannot be opened with O_NOFOLLOW, and with an attribute
/// that tells where the folder is. Needs root and /dev/fuse; without them `problem` says so. Owner: the
/// object unmounts.
class PortalFolder {
public:
    /// `user`: who is said to serve it.
    explicit PortalFolder(std::filesystem::path behind, const char* type = "fuse.portal", uid_t user = 0);

    const std::filesystem::path& path() const { return m_server.path(); }
    const std::string& problem() const { return m_server.problem(); }
    /// The bytes of the attribute; absent: there is none. Threads: any.
    void tell(const std::optional<std::string>& hostPath);
    /// Changes each answer about the folder's attributes. Threads: called on one of its own.
    void distort(std::function<void(fuse_attr&)> change);

private:
    void answer(FuseServer& server, const FuseServer::Request& request);
    void answerLookup(FuseServer& server, const FuseServer::Request& request);
    void answerAttribute(FuseServer& server, const FuseServer::Request& request);
    fuse_attr attributesOf(std::uint64_t node);

    std::filesystem::path m_behind;
    std::mutex m_lock;
    std::optional<std::string> m_hostPath;
    std::function<void(fuse_attr&)> m_change;
    FuseServer m_server; ///< ends first
};

} // namespace test
