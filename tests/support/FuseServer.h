#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <linux/fuse.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <thread>

namespace test {

/// Mounts a FUSE file system at a folder of its own and answers for it on a thread of its own. Needs root
/// and /dev/fuse; without them `problem` says so. Owner: the object unmounts and ends the thread; whoever
/// still uses the files gets errors.
class FuseServer {
public:
    static constexpr std::size_t largestTransfer = 1048576;

    struct Request {
        fuse_in_header head{};
        std::span<const char> body;

        template <class Value>
        Value as() const {
            Value value{};
            std::memcpy(&value, body.data(), std::min(sizeof value, body.size()));
            return value;
        }
    };
    using Answer = std::function<void(FuseServer& server, const Request& request)>;

    /// `answer` is called for each request, one after the other, and replies to those that want it.
    FuseServer(const char* type, const std::string& options, Answer answer);
    ~FuseServer();
    FuseServer(const FuseServer&) = delete;
    FuseServer& operator=(const FuseServer&) = delete;

    const std::filesystem::path& path() const { return m_mountPoint; }
    const std::string& problem() const { return m_problem; }
    /// `error`: an errno, 0 for none.
    void reply(const Request& request, int error, std::span<const char> body = {});
    template <class Body>
    void replyWith(const Request& request, const Body& body) {
        reply(request, 0, std::span(reinterpret_cast<const char*>(&body), sizeof body));
    }

private:
    void serve();

    Answer m_answer;
    TemporaryFolder m_folder;
    std::filesystem::path m_mountPoint;
    std::string m_problem;
    OndelCore::platform::FileDescriptor m_requests;
    OndelCore::platform::FileDescriptor m_endMark;
    std::thread m_program;
};

} // namespace test
