#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <linux/fuse.h>
#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace test {

/// A folder as the desktop's document portal hands it over: a FUSE file system with the attributes of the
/// folder behind it and of its file "file", which cannot be opened with O_NOFOLLOW, and with an attribute
/// that tells where the folder is. Needs root and /dev/fuse; without them `problem` says so. Owner: the
/// object unmounts.
class PortalFolder {
public:
    /// `user`: who is said to serve it.
    explicit PortalFolder(std::filesystem::path behind, const char* type = "fuse.portal", uid_t user = 0);
    ~PortalFolder();
    PortalFolder(const PortalFolder&) = delete;
    PortalFolder& operator=(const PortalFolder&) = delete;

    const std::filesystem::path& path() const { return m_mountPoint; }
    const std::string& problem() const { return m_problem; }
    /// The bytes of the attribute; absent: there is none. Threads: any.
    void tell(const std::optional<std::string>& hostPath);
    /// Changes each answer about the folder's attributes. Threads: called on one of its own.
    void distort(std::function<void(fuse_attr&)> change);

private:
    struct Request;
    void serve();
    void answer(const Request& request);
    void answerLookup(const Request& request);
    void answerAttribute(const Request& request);
    void reply(std::uint64_t unique, int error, const void* body = nullptr, std::size_t length = 0);
    fuse_attr attributesOf(std::uint64_t node);

    std::filesystem::path m_behind;
    TemporaryFolder m_folder;
    std::filesystem::path m_mountPoint;
    std::string m_problem;
    OndelCore::platform::FileDescriptor m_requests;
    std::mutex m_lock;
    std::optional<std::string> m_hostPath;
    std::function<void(fuse_attr&)> m_change;
    std::thread m_program;
};

} // namespace test
