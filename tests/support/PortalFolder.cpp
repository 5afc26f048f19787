#include "support/PortalFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace test {

namespace {

constexpr std::uint64_t fileNode = 2;

} // namespace

PortalFolder::PortalFolder(std::filesystem::path behind, const char* type, uid_t user)
    : m_behind(std::move(behind))
    , m_server(type, "user_id=" + std::to_string(user), [this](FuseServer& server, const auto& request) {
        const std::lock_guard guard(m_lock);
        answer(server, request);
    }) {}

void PortalFolder::tell(const std::optional<std::string>& hostPath) {
    const std::lock_guard guard(m_lock);
    m_hostPath = hostPath;
}

void PortalFolder::distort(std::function<void(fuse_attr&)> change) {
    const std::lock_guard guard(m_lock);
    m_change = std::move(change);
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

void PortalFolder::answerLookup(FuseServer& server, const FuseServer::Request& request) {
    if (std::strcmp(request.body.data(), "file") != 0)
        return server.reply(request, ENOENT);
    fuse_entry_out entry{};
    entry.nodeid = fileNode;
    entry.attr = attributesOf(fileNode);
    server.replyWith(request, entry);
}

void PortalFolder::answerAttribute(FuseServer& server, const FuseServer::Request& request) {
    const auto asked = request.as<fuse_getxattr_in>();
    const char* name = request.body.data() + sizeof asked;
    if (!m_hostPath || std::strcmp(name, "user.document-portal.host-path") != 0)
        return server.reply(request, ENODATA);
    if (asked.size != 0)
        return asked.size < m_hostPath->size() ? server.reply(request, ERANGE)
                                               : server.reply(request, 0, *m_hostPath);
    fuse_getxattr_out length{};
    length.size = static_cast<std::uint32_t>(m_hostPath->size());
    server.replyWith(request, length);
}

void PortalFolder::answer(FuseServer& server, const FuseServer::Request& request) {
    switch (request.head.opcode) {
    case FUSE_INIT: {
        fuse_init_out init{};
        init.major = FUSE_KERNEL_VERSION;
        init.minor = FUSE_KERNEL_MINOR_VERSION;
        init.max_write = 4096;
        return server.replyWith(request, init);
    }
    case FUSE_LOOKUP:
        return answerLookup(server, request);
    case FUSE_GETATTR: {
        fuse_attr_out told{};
        told.attr = attributesOf(request.head.nodeid);
        told.attr_valid = 3600; // as long as the kernel likes: who wants to know, has to ask anew
        return server.replyWith(request, told);
    }
    case FUSE_GETXATTR:
        return answerAttribute(server, request);
    case FUSE_OPEN: {
        const fuse_open_out opened{};
        const bool isRefused = (request.as<fuse_open_in>().flags & O_NOFOLLOW) != 0;
        return isRefused ? server.reply(request, ELOOP) : server.replyWith(request, opened);
    }
    case FUSE_FORGET:
    case FUSE_BATCH_FORGET:
    case FUSE_INTERRUPT:
        return;
    default:
        return server.reply(request, ENOSYS);
    }
}

} // namespace test
