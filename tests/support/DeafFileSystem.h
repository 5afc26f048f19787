#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <atomic>
#include <string>
#include <thread>

namespace test {

/// A mounted FUSE file system whose program takes each request and answers none, as one does whose server is
/// gone: no signal gets a thread out of there. Needs root and /dev/fuse; without them `problem` says so.
/// Owner: the object unmounts; whoever still waits there gets an error.
class DeafFileSystem {
public:
    explicit DeafFileSystem(const char* type = "fuse.sshfs");
    ~DeafFileSystem();
    DeafFileSystem(const DeafFileSystem&) = delete;
    DeafFileSystem& operator=(const DeafFileSystem&) = delete;

    const std::filesystem::path& path() const { return m_mountPoint; }
    const std::string& problem() const { return m_problem; }

    /// Whether somebody has asked for something and hangs.
    bool isAsked() const { return m_taken > 0; }
    /// Waits for that.
    void awaitRequest() const;
    /// From now on each request, those that hang included, fails.
    void end();

private:
    void takeRequests();

    TemporaryFolder m_folder;
    std::filesystem::path m_mountPoint;
    std::string m_problem;
    OndelCore::platform::FileDescriptor m_requests;
    OndelCore::platform::FileDescriptor m_endMark;
    std::atomic<int> m_taken = 0;
    std::thread m_program;
};

} // namespace test
