#include "support/FaultyDisk.h"

#include "support/Program.h"

#include <linux/fuse.h>
#include <sys/mman.h>
#include <sys/mount.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <map>
#include <system_error>
#include <thread>

using OndelCore::platform::FileDescriptor;

namespace test {

namespace {

constexpr std::int64_t diskBlock = 4096;
constexpr std::uint64_t diskNode = 2;

/// Of 68 random bytes hardly one is zero. Of those of a file system's tables a quarter at least is, and of
/// other programs' test data less than an eighth.
bool looksRandom(std::span<const char> block) {
    constexpr std::size_t step = 61;
    constexpr int few = 12;
    int zeros = 0;
    for (std::size_t at = 0; at < block.size(); at += step)
        zeros += block[at] == 0 ? 1 : 0;
    return block.size() == diskBlock && zeros < few;
}

FileDescriptor memoryOf(std::int64_t bytes) {
    FileDescriptor memory(memfd_create("faulty-disk", MFD_CLOEXEC));
    if (!memory || ftruncate(memory.get(), bytes) != 0)
        throw std::system_error(errno, std::generic_category(), "memory for a disk");
    return memory;
}

fuse_attr attributesOf(std::uint64_t node, std::int64_t bytes) {
    fuse_attr attributes{};
    attributes.ino = node;
    attributes.size = node == diskNode ? static_cast<std::uint64_t>(bytes) : 0;
    attributes.blocks = attributes.size / 512;
    attributes.mode = node == diskNode ? S_IFREG | 0600 : S_IFDIR | 0700;
    attributes.nlink = 1;
    attributes.blksize = diskBlock;
    return attributes;
}

/// What the command complained of; empty when it succeeded. `answer`: its first line.
std::string complaintOfTool(const std::vector<std::string>& command, std::string* answer = nullptr) {
    Program program(command);
    std::string complaint = command.front() + ":";
    for (std::string line = program.line(); !line.empty(); line = program.line()) {
        if (answer != nullptr && answer->empty())
            *answer = line;
        complaint += ' ' + line;
    }
    return program.succeeds() ? "" : complaint;
}

} // namespace

DiskFault::Kind diskFaultKind(const std::string& name) {
    using Kind = DiskFault::Kind;
    static const std::map<std::string, Kind> kinds{{"none", Kind::none},
                                                   {"wrap", Kind::wrap},
                                                   {"dropZeros", Kind::dropZeros},
                                                   {"dropLast", Kind::dropLast},
                                                   {"dropNoise", Kind::dropNoise},
                                                   {"flip", Kind::flip},
                                                   {"swap", Kind::swap},
                                                   {"unreadable", Kind::unreadable},
                                                   {"unwritable", Kind::unwritable},
                                                   {"slow", Kind::slow},
                                                   {"vanish", Kind::vanish},
                                                   {"forgetsLater", Kind::forgetsLater}};
    return kinds.at(name);
}

FaultyDisk::FaultyDisk(std::int64_t bytes)
    : m_bytes(bytes)
    , m_store(memoryOf(bytes))
    , m_server("fuse", "user_id=0,max_read=1048576", [this](FuseServer& server, const auto& request) {
        const std::lock_guard guard(m_lock);
        answer(server, request);
    }) {}

void FaultyDisk::arm(const DiskFault& fault) {
    const std::lock_guard guard(m_lock);
    m_fault = fault;
    m_dataBlocks = m_dataMoved = m_readSince = m_sinceFlip = 0;
    m_firstPlace = m_secondPlace = -1;
}

void FaultyDisk::answer(FuseServer& server, const FuseServer::Request& request) {
    switch (request.head.opcode) {
    case FUSE_INIT: {
        fuse_init_out init{};
        init.major = FUSE_KERNEL_VERSION;
        init.minor = FUSE_KERNEL_MINOR_VERSION;
        init.max_readahead = 0;
        init.flags = FUSE_BIG_WRITES | FUSE_MAX_PAGES;
        init.max_background = 64;
        init.max_write = FuseServer::largestTransfer;
        init.max_pages = FuseServer::largestTransfer / 4096;
        return server.replyWith(request, init);
    }
    case FUSE_LOOKUP: {
        fuse_entry_out entry{};
        entry.nodeid = diskNode;
        entry.entry_valid = entry.attr_valid = 3600;
        entry.attr = attributesOf(diskNode, m_bytes);
        const bool isKnown = std::strcmp(request.body.data(), "disk") == 0;
        return isKnown ? server.replyWith(request, entry) : server.reply(request, ENOENT);
    }
    case FUSE_GETATTR:
    case FUSE_SETATTR: {
        fuse_attr_out attributes{};
        attributes.attr_valid = 3600;
        attributes.attr = attributesOf(request.head.nodeid, m_bytes);
        return server.replyWith(request, attributes);
    }
    case FUSE_OPEN: {
        fuse_open_out opened{};
        opened.open_flags = FOPEN_DIRECT_IO;
        return server.replyWith(request, opened);
    }
    case FUSE_READ: {
        const auto ask = request.as<fuse_read_in>();
        std::vector<char> bytes(ask.size);
        const int error = moveBlocks(static_cast<std::int64_t>(ask.offset), bytes, {});
        return server.reply(request, error,
                            error == 0 ? std::span<const char>(bytes) : std::span<const char>());
    }
    case FUSE_WRITE: {
        const auto ask = request.as<fuse_write_in>();
        const int error =
            moveBlocks(static_cast<std::int64_t>(ask.offset), {}, request.body.subspan(sizeof ask, ask.size));
        fuse_write_out written{};
        written.size = ask.size;
        return error == 0 ? server.replyWith(request, written) : server.reply(request, error);
    }
    case FUSE_FORGET:
    case FUSE_BATCH_FORGET:
    case FUSE_INTERRUPT:
        return;
    case FUSE_STATFS: {
        fuse_statfs_out facts{};
        return server.replyWith(request, facts);
    }
    case FUSE_FLUSH:
    case FUSE_FSYNC:
    case FUSE_RELEASE:
    case FUSE_ACCESS:
        return server.reply(request, 0);
    default:
        return server.reply(request, ENOSYS);
    }
}

/// Moves one way, block by block; the parts at the ends may be shorter.
int FaultyDisk::moveBlocks(std::int64_t offset, std::span<char> read, std::span<const char> written) {
    const std::size_t length = std::max(read.size(), written.size());
    if (m_fault.kind == DiskFault::Kind::slow)
        std::this_thread::sleep_for(std::chrono::microseconds(static_cast<std::int64_t>(length) * 1'000'000 /
                                                              std::max<std::int64_t>(1, m_fault.rate)));
    (read.empty() ? m_written : m_read) += static_cast<std::int64_t>(length);
    if (m_fault.kind == DiskFault::Kind::none || m_fault.kind == DiskFault::Kind::slow) {
        const ssize_t moved = read.empty() ? pwrite(m_store.get(), written.data(), length, offset)
                                           : pread(m_store.get(), read.data(), length, offset);
        return moved < 0 ? EIO : 0;
    }
    for (std::size_t done = 0; done < length;) {
        const std::int64_t at = offset + static_cast<std::int64_t>(done);
        const std::size_t part =
            std::min(length - done, static_cast<std::size_t>(diskBlock - at % diskBlock));
        const int error = read.empty() ? writeBlock(at, written.subspan(done, part))
                                       : readBlock(at, read.subspan(done, part));
        if (error != 0)
            return error;
        done += part;
    }
    return 0;
}

int FaultyDisk::writeBlock(std::int64_t place, std::span<const char> bytes) {
    using Kind = DiskFault::Kind;
    const bool isData = looksRandom(bytes);
    if (isData) {
        const std::int64_t number = m_dataBlocks++;
        m_dataMoved += diskBlock;
        if (number == m_fault.first)
            m_firstPlace = place;
        if (number == m_fault.second)
            m_secondPlace = place;
    }
    const bool isBeyond = place >= m_fault.limit;
    const Kind kind = m_fault.kind;
    if ((kind == Kind::vanish && m_dataMoved > m_fault.limit) ||
        (kind == Kind::unwritable && (place == m_firstPlace || place == m_secondPlace)))
        return EIO;
    if (isBeyond && (kind == Kind::dropZeros || kind == Kind::dropLast || kind == Kind::dropNoise))
        return 0;
    std::array<char, diskBlock> changed{};
    if (kind == Kind::flip && isData && (m_sinceFlip += diskBlock) >= m_fault.every) {
        m_sinceFlip = 0;
        std::ranges::copy(bytes, changed.begin());
        changed[1234] = static_cast<char>(changed[1234] ^ 0x10);
        bytes = changed;
    }
    if (kind == Kind::swap && isData && m_dataBlocks - 1 == m_fault.second && m_firstPlace >= 0) {
        std::array<char, diskBlock> first{};
        if (pread(m_store.get(), first.data(), first.size(), m_firstPlace) < 0 ||
            pwrite(m_store.get(), first.data(), first.size(), m_secondPlace) < 0)
            return EIO;
        return pwrite(m_store.get(), bytes.data(), bytes.size(), m_firstPlace) < 0 ? EIO : 0;
    }
    return pwrite(m_store.get(), bytes.data(), bytes.size(),
                  kind == Kind::wrap ? place % m_fault.limit : place) < 0
               ? EIO
               : 0;
}

int FaultyDisk::readBlock(std::int64_t place, std::span<char> bytes) {
    using Kind = DiskFault::Kind;
    const Kind kind = m_fault.kind;
    const std::int64_t block = place / diskBlock * diskBlock;
    m_readSince += static_cast<std::int64_t>(bytes.size());
    if ((kind == Kind::vanish && m_dataMoved > m_fault.limit) ||
        (kind == Kind::unreadable && (block == m_firstPlace || block == m_secondPlace)))
        return EIO;
    const bool isBeyond = place >= m_fault.limit;
    if (kind == Kind::dropNoise && isBeyond)
        return getrandom(bytes.data(), bytes.size(), 0) < 0 ? EIO : 0;
    const bool isForgotten =
        kind == Kind::forgetsLater && m_readSince > m_fault.limit && block == m_firstPlace;
    if ((kind == Kind::dropZeros && isBeyond) || isForgotten) {
        std::ranges::fill(bytes, '\0');
        return 0;
    }
    if (kind == Kind::dropLast && isBeyond)
        place = m_fault.limit - diskBlock + place % diskBlock;
    else if (kind == Kind::wrap)
        place %= m_fault.limit;
    const ssize_t read = pread(m_store.get(), bytes.data(), bytes.size(), place);
    if (kind == Kind::vanish && looksRandom(bytes))
        m_dataMoved += diskBlock;
    return read < 0 ? EIO : 0;
}

FaultyVolume::FaultyVolume(const std::string& type, std::int64_t bytes, const std::string& mountOptions,
                           const std::vector<std::string>& formatOptions)
    : m_disk(bytes)
    , m_mountPoint(m_folder.path() / "mount")
    , m_problem(m_disk.problem()) {
    std::filesystem::create_directory(m_mountPoint);
    if (m_problem.empty())
        m_problem = complaintOfTool({"losetup", "--find", "--show", m_disk.file().string()}, &m_device);
    if (!m_problem.empty())
        return;
    std::vector<std::string> format{"mkfs." + type};
    format.insert(format.end(), formatOptions.begin(), formatOptions.end());
    format.push_back(m_device);
    m_problem = complaintOfTool(format);
    if (!m_problem.empty())
        return;
    const std::string driver = type == "exfat" ? "exfat-fuse" : type == "ntfs" ? "ntfs-3g" : type;
    m_problem = complaintOfTool({"mount", "-t", driver, "-o", mountOptions.empty() ? "rw" : mountOptions,
                                 m_device, m_mountPoint.string()});
    m_isMounted = m_problem.empty();
}

FaultyVolume::~FaultyVolume() {
    if (m_isMounted && umount2(m_mountPoint.c_str(), 0) != 0)
        umount2(m_mountPoint.c_str(), MNT_DETACH);
    if (!m_device.empty())
        complaintOfTool({"losetup", "--detach", m_device});
}

} // namespace test
