#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/FuseServer.h"
#include "support/TemporaryFolder.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <vector>

namespace test {

/// What is wrong with a disk. Units: bytes. Blocks of 4096 bytes that look random count as data; everything
/// else is taken for a file system's own, which the faults that hit single blocks leave alone.
struct DiskFault {
    enum class Kind {
        none,
        wrap,         ///< has `limit` bytes, and begins anew beyond
        dropZeros,    ///< drops what lies beyond `limit`: reads zeros there
        dropLast,     ///< the same, and reads its last block there
        dropNoise,    ///< the same, and reads noise there
        flip,         ///< flips one bit in every `every` bytes of data that it takes
        swap,         ///< exchanges the data blocks number `first` and `second` that it takes
        unreadable,   ///< fails to read the data blocks number `first` and `second`
        unwritable,   ///< fails to write them
        slow,         ///< serves `rate` bytes per second
        vanish,       ///< fails every request after `limit` bytes of data were moved
        forgetsLater, ///< after `limit` bytes were read, reads the data block number `first` as zeros
    };
    Kind kind = Kind::none;
    std::int64_t limit = 0;
    std::int64_t every = 125'000'000;
    std::int64_t first = 0;
    std::int64_t second = 0;
    std::int64_t rate = 0;
};

/// The kind of this name ("dropZeros"); throws std::out_of_range.
DiskFault::Kind diskFaultKind(const std::string& name);

/// A disk that lives in memory, served as the one file of a FUSE file system, past the cache. A loop device
/// on that file is a block device with the fault. Needs root and /dev/fuse; without them `problem` says so.
/// Owner: the object unmounts; whoever still uses the file gets errors.
class FaultyDisk {
public:
    explicit FaultyDisk(std::int64_t bytes);

    std::filesystem::path file() const { return m_server.path() / "disk"; }
    const std::string& problem() const { return m_server.problem(); }
    /// From now on the disk has the fault. Threads: any.
    void arm(const DiskFault& fault);
    /// Units: bytes that were read and written.
    std::int64_t bytesRead() const { return m_read; }
    std::int64_t bytesWritten() const { return m_written; }

private:
    void answer(FuseServer& server, const FuseServer::Request& request);
    int moveBlocks(std::int64_t offset, std::span<char> read, std::span<const char> written);
    int readBlock(std::int64_t place, std::span<char> bytes);
    int writeBlock(std::int64_t place, std::span<const char> bytes);

    std::int64_t m_bytes;
    OndelCore::platform::FileDescriptor m_store;
    std::mutex m_lock;
    DiskFault m_fault;
    std::int64_t m_dataBlocks = 0; ///< taken since the fault was armed
    std::int64_t m_dataMoved = 0;
    std::int64_t m_readSince = 0;
    std::int64_t m_sinceFlip = 0;
    std::int64_t m_firstPlace = -1;
    std::int64_t m_secondPlace = -1;
    std::atomic<std::int64_t> m_read = 0;
    std::atomic<std::int64_t> m_written = 0;
    FuseServer m_server; ///< ends first
};

/// A file system on a faulty disk.
class FaultyVolume {
public:
    /// `type`: what mkfs knows. Formatted and mounted while the disk is good. `problem` tells what failed.
    FaultyVolume(const std::string& type, std::int64_t bytes, const std::string& mountOptions = {},
                 const std::vector<std::string>& formatOptions = {});
    ~FaultyVolume();
    FaultyVolume(const FaultyVolume&) = delete;
    FaultyVolume& operator=(const FaultyVolume&) = delete;

    FaultyDisk& disk() { return m_disk; }
    const std::filesystem::path& path() const { return m_mountPoint; }
    const std::string& problem() const { return m_problem; }

private:
    FaultyDisk m_disk;
    TemporaryFolder m_folder;
    std::filesystem::path m_mountPoint;
    std::string m_device;
    std::string m_problem;
    bool m_isMounted = false;
};

} // namespace test
