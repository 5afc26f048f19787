#include "support/PortalFolder.h"

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>
#include <vector>

using OndelCore::platform::FileDescriptor;

namespace test {

namespace {

constexpr std::uint64_t fileNode = 2;

template <typename Body>
Body bodyOf(const std::vector<char>& bytes) {
    Body body{};
    if (bytes.size() >= sizeof body)
        std::memcpy(&body, bytes.data(), sizeof body);
    return body;
}

} // namespace

struct PortalFolder::Request {
    fuse_in_header head{};
    std::vector<char> body;
};

PortalFolder::PortalFolder(std::filesystem::path behind, const char* type, uid_t user)
    : m_behind(std::move(behind))
    , m_mountPoint(m_folder.path() / "doc")
    , m_requests(open("/dev/fuse", O_RDWR | O_CLOEXEC)) {
    std::filesystem::create_directory(m_mountPoint);
    const std::string options = "fd=" + std::to_string(m_requests.get()) +
                                ",rootmode=40000,user_id=" + std::to_string(user) + ",group_id=0,allow_other";
    if (!m_requests || mount("portal", m_mountPoint.c_str(), type, 0, options.c_str()) != 0) {
        m_problem = "no right to FUSE: " + std::generic_category().message(errno);
        return;
    }
    m_program = std::thread([this] { serve(); });
}

/// Unmounting ends the connection, and with it the thread's reading.
PortalFolder::~PortalFolder() {
    if (!m_problem.empty())
        return;
    umount2(m_mountPoint.c_str(), MNT_FORCE | MNT_DETACH);
    m_program.join();
}

void PortalFolder::tell(const std::optional<std::string>& hostPath) {
    const std::lock_guard guard(m_lock);
    m_hostPath = hostPath;
}

void PortalFolder::distort(std::function<void(fuse_attr&)> change) {
    const std::lock_guard guard(m_lock);
    m_change = std::move(change);
}

void PortalFolder::serve() {
    std::vector<char> memory(65536 + 4096);
    for (;;) {
        const ssize_t length = read(m_requests.get(), memory.data(), memory.size());
        if (length < 0 && (errno == EINTR || errno == ENOENT || errno == EAGAIN))
            continue;
        if (length < static_cast<ssize_t>(sizeof(fuse_in_header)))
            return;
        Request request;
        std::memcpy(&request.head, memory.data(), sizeof request.head);
        request.body.assign(memory.begin() + sizeof request.head, memory.begin() + length);
        const std::lock_guard guard(m_lock);
        answer(request);
    }
}

void PortalFolder::reply(std::uint64_t unique, int error, const void* body, std::size_t length) {
    fuse_out_header head{};
    head.len = static_cast<std::uint32_t>(sizeof head + length);
    head.error = -error;
    head.unique = unique;
    std::array<iovec, 2> parts{iovec{&head, sizeof head}, iovec{const_cast<void*>(body), length}};
    [[maybe_unused]] const ssize_t sent = writev(m_requests.get(), parts.data(), 2);
}

fuse_attr PortalFolder::attributesOf(std::uint64_t node) {
    struct stat facts{};
    stat((node == fileNode ? m_behind / "file" : m_behind).c_str(), &facts);
    fuse_attr told{};
    told.ino = node;
    told.size = static_cast<std::uint64_t>(facts.st_size);
    told.mtime = static_cast<std::uint64_t>(facts.st_mtim.tv_sec);
    told.mtimensec = static_cast<std::uint32_t>(facts.st_mtim.tv_nsec);
    told.ctime = static_cast<std::uint64_t>(facts.st_ctim.tv_sec);
    told.ctimensec = static_cast<std::uint32_t>(facts.st_ctim.tv_nsec);
    told.mode = facts.st_mode;
    told.nlink = static_cast<std::uint32_t>(facts.st_nlink);
    told.uid = facts.st_uid;
    told.gid = facts.st_gid;
    if (m_change && node == FUSE_ROOT_ID)
        m_change(told);
    return told;
}

void PortalFolder::answerLookup(const Request& request) {
    if (std::strcmp(request.body.data(), "file") != 0)
        return reply(request.head.unique, ENOENT);
    fuse_entry_out entry{};
    entry.nodeid = fileNode;
    entry.attr = attributesOf(fileNode);
    reply(request.head.unique, 0, &entry, sizeof entry);
}

void PortalFolder::answerAttribute(const Request& request) {
    const auto asked = bodyOf<fuse_getxattr_in>(request.body);
    const char* name = request.body.data() + sizeof asked;
    if (!m_hostPath || std::strcmp(name, "user.document-portal.host-path") != 0)
        return reply(request.head.unique, ENODATA);
    if (asked.size != 0)
        return asked.size < m_hostPath->size()
                   ? reply(request.head.unique, ERANGE)
                   : reply(request.head.unique, 0, m_hostPath->data(), m_hostPath->size());
    fuse_getxattr_out length{};
    length.size = static_cast<std::uint32_t>(m_hostPath->size());
    reply(request.head.unique, 0, &length, sizeof length);
}

void PortalFolder::answer(const Request& request) {
    const auto& head = request.head;
    switch (head.opcode) {
    case FUSE_INIT: {
        fuse_init_out init{};
        init.major = FUSE_KERNEL_VERSION;
        init.minor = FUSE_KERNEL_MINOR_VERSION;
        init.max_write = 4096;
        return reply(head.unique, 0, &init, sizeof init);
    }
    case FUSE_LOOKUP:
        return answerLookup(request);
    case FUSE_GETATTR: {
        fuse_attr_out told{};
        told.attr = attributesOf(head.nodeid);
        told.attr_valid = 3600; // as long as the kernel likes: who wants to know, has to ask anew
        return reply(head.unique, 0, &told, sizeof told);
    }
    case FUSE_GETXATTR:
        return answerAttribute(request);
    case FUSE_OPEN: {
        const fuse_open_out opened{};
        const bool isRefused = (bodyOf<fuse_open_in>(request.body).flags & O_NOFOLLOW) != 0;
        return isRefused ? reply(head.unique, ELOOP) : reply(head.unique, 0, &opened, sizeof opened);
    }
    case FUSE_FORGET:
    case FUSE_BATCH_FORGET:
    case FUSE_INTERRUPT:
        return;
    default:
        return reply(head.unique, ENOSYS);
    }
}

} // namespace test
