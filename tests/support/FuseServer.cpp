#include "support/FuseServer.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/mount.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace test {

FuseServer::FuseServer(const char* type, const std::string& options, Answer answer)
    : m_answer(std::move(answer))
    , m_mountPoint(m_folder.path() / "mount")
    , m_requests(open("/dev/fuse", O_RDWR | O_CLOEXEC))
    , m_endMark(eventfd(0, EFD_CLOEXEC)) {
    std::filesystem::create_directory(m_mountPoint);
    const std::string all =
        "fd=" + std::to_string(m_requests.get()) + ",rootmode=40000,group_id=0,allow_other," + options;
    if (!m_requests || mount("test", m_mountPoint.c_str(), type, 0, all.c_str()) != 0) {
        m_problem = "no right to FUSE: " + std::generic_category().message(errno);
        return;
    }
    m_program = std::thread([this] { serve(); });
}

FuseServer::~FuseServer() {
    if (!m_problem.empty())
        return;
    umount2(m_mountPoint.c_str(), MNT_DETACH);
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t told = write(m_endMark.get(), &one, sizeof one);
    m_program.join();
}

void FuseServer::serve() {
    std::vector<char> memory(largestTransfer + 4096);
    for (;;) {
        std::array<pollfd, 2> watched{pollfd{m_requests.get(), POLLIN, 0},
                                      pollfd{m_endMark.get(), POLLIN, 0}};
        poll(watched.data(), watched.size(), -1);
        if (watched[1].revents != 0)
            return;
        const ssize_t length = read(m_requests.get(), memory.data(), memory.size());
        if (length < 0 && (errno == EINTR || errno == ENOENT || errno == EAGAIN))
            continue;
        if (length < static_cast<ssize_t>(sizeof(fuse_in_header)))
            return;
        Request request;
        std::memcpy(&request.head, memory.data(), sizeof request.head);
        request.body = std::span<const char>(memory).subspan(
            sizeof request.head, static_cast<std::size_t>(length) - sizeof request.head);
        m_answer(*this, request);
    }
}

void FuseServer::reply(const Request& request, int error, std::span<const char> body) {
    fuse_out_header head{};
    head.len = static_cast<std::uint32_t>(sizeof head + body.size());
    head.error = -error;
    head.unique = request.head.unique;
    std::array<iovec, 2> parts{iovec{&head, sizeof head}, iovec{const_cast<char*>(body.data()), body.size()}};
    [[maybe_unused]] const ssize_t sent = writev(m_requests.get(), parts.data(), 2);
}

} // namespace test
