#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace OndelCore::platform {

/// What block devices did since they were there. Units: bytes and requests.
struct DiskCounters {
    std::int64_t readBytes = 0;
    std::int64_t reads = 0;
    std::int64_t writtenBytes = 0;
    std::int64_t writes = 0;

    bool operator==(const DiskCounters&) const = default;
};

/// Reads the counters of block devices, summed up. Threads: one at a time.
class DiskWitness {
public:
    virtual ~DiskWitness() = default;
    /// Fails: absent when a device does not tell, is gone, or counted back since the last call: a counter
    /// that wrapped or another device of the same number.
    virtual std::optional<DiskCounters> counters() = 0;
};

/// The disks under the volume that the open `folder` lies on; needed until the function returns. Fails: null
/// if there is no disk to be seen (network and memory file systems, most programs' file systems).
std::unique_ptr<DiskWitness> diskWitness(int folder);

/// The same of the volume's own device (a partition, a mapping, a loop device), which other volumes on its
/// disk leave alone. Fails: null where that is a whole disk, or one of several devices.
std::unique_ptr<DiskWitness> volumeWitness(int folder);

/// The same of the devices with these folders in the device tree.
std::unique_ptr<DiskWitness> witnessOf(std::vector<std::filesystem::path> deviceFolders);

/// Bytes that the kernel accounts to the calling thread (proc, "thread-self/io": read_bytes, write_bytes).
struct ThreadTraffic {
    std::int64_t readBytes = 0;
    std::int64_t writtenBytes = 0;

    bool operator==(const ThreadTraffic&) const = default;
};
/// Fails: absent where the kernel does not account for it.
std::optional<ThreadTraffic> trafficOfThisThread();

} // namespace OndelCore::platform
