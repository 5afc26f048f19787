#include "support/DeafFileSystem.h"

#include <fcntl.h>
#include <linux/fuse.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/mount.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

using OndelCore::platform::FileDescriptor;

namespace test {

DeafFileSystem::DeafFileSystem(const char* type)
    : m_mountPoint(m_folder.path() / "deaf")
    , m_requests(open("/dev/fuse", O_RDWR | O_CLOEXEC))
    , m_endMark(eventfd(0, EFD_CLOEXEC)) {
    std::filesystem::create_directory(m_mountPoint);
    const std::string options =
        "fd=" + std::to_string(m_requests.get()) + ",rootmode=40000,user_id=0,group_id=0,allow_other";
    if (!m_requests || mount("server:/", m_mountPoint.c_str(), type, 0, options.c_str()) != 0) {
        m_problem = "no right to FUSE: " + std::generic_category().message(errno);
        return;
    }
    m_program = std::thread([this] { takeRequests(); });
}

DeafFileSystem::~DeafFileSystem() {
    if (!m_problem.empty())
        return;
    end();
    umount2(m_mountPoint.c_str(), MNT_DETACH);
}

void DeafFileSystem::takeRequests() {
    struct InitAnswer {
        fuse_out_header header;
        fuse_init_out body;
    };
    std::array<char, 65536 + 4096> request{};
    for (;;) {
        std::array<pollfd, 2> watched{pollfd{m_requests.get(), POLLIN, 0},
                                      pollfd{m_endMark.get(), POLLIN, 0}};
        poll(watched.data(), watched.size(), -1);
        if (watched[1].revents != 0 || read(m_requests.get(), request.data(), request.size()) <= 0)
            return;
        fuse_in_header asked{};
        std::memcpy(&asked, request.data(), sizeof asked);
        if (asked.opcode != FUSE_INIT) {
            ++m_taken;
            m_taken.notify_all();
            continue;
        }
        InitAnswer answer{};
        answer.header = {.len = sizeof answer, .error = 0, .unique = asked.unique};
        answer.body.major = FUSE_KERNEL_VERSION;
        answer.body.minor = FUSE_KERNEL_MINOR_VERSION;
        answer.body.max_write = 4096;
        if (write(m_requests.get(), &answer, sizeof answer) < 0)
            return;
    }
}

void DeafFileSystem::awaitRequest() const { m_taken.wait(0); }

void DeafFileSystem::end() {
    if (!m_program.joinable())
        return;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t told = write(m_endMark.get(), &one, sizeof one);
    m_program.join();
    m_requests = FileDescriptor(); // nobody holds it any more: the kernel ends the connection
}

} // namespace test
