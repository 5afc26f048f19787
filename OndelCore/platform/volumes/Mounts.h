#pragma once

#include "OndelCore/Export.h"

#include <sys/types.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OndelCore::platform {

inline const std::filesystem::path systemMountTable = "/proc/self/mountinfo";

/// One entry of the mount table (proc(5), "mountinfo"). Paths and source are decoded bytes, not necessarily
/// UTF-8.
struct Mount {
    std::uint64_t id = 0;         ///< unique among current mounts; may be reused later
    std::uint64_t parentId = 0;   ///< the mount of the parent folder; may be missing from the table
    dev_t device = 0;             ///< the superblock's device number; anonymous for Btrfs, network, memory
    std::filesystem::path root{}; ///< the mounted part of the file system: "/", a subvolume or a bind source
    std::filesystem::path mountPoint{}; ///< where it is mounted
    std::string type{};                 ///< the kernel's name of the file system: "ext4", "fuse.sshfs"
    std::string source{};       ///< the device's path, the server's address, or a word such as "tmpfs"
    std::string options{};      ///< of this mount, comma-separated: "rw,nosuid"
    std::string superOptions{}; ///< of the file system, comma-separated

    bool operator==(const Mount&) const = default;
};

/// All mounts of this process's namespace, in the table's order: later ones cover earlier ones. Threads: any.
/// Fails: an unreadable table is an empty list; a malformed line is skipped.
std::vector<Mount> mounts(const std::filesystem::path& table = systemMountTable);

/// One reading of a mount table. Copies share it, so that all questions to one table agree and the file is
/// read once. Threads: any.
class ONDEL_KIT MountTable {
public:
    /// The file is read at the first call of `mounts`.
    explicit MountTable(std::filesystem::path file);
    MountTable()
        : MountTable(systemMountTable) {}
    const std::vector<Mount>& mounts() const;

private:
    struct Reading;
    std::shared_ptr<Reading> m_reading;
};

/// The default time limit of questions to a volume: longer than a sleeping disk or server takes to wake up.
constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(30);

/// The mount that holds `path`. Threads: any. Fails: absent if the path cannot be resolved, its mount is not
/// in this namespace, or it does not answer within defaultPatience.
std::optional<Mount> mountOfPath(const std::filesystem::path& path);

/// The same among these mounts.
std::optional<Mount> mountOfPathIn(const std::vector<Mount>& mounts, const std::filesystem::path& path,
                                   std::chrono::milliseconds patience = defaultPatience);

/// The mount that holds an open file or folder, without asking its file system. Threads: any. Fails: absent
/// if it is none of these.
std::optional<Mount> mountOfDescriptor(int descriptor, const std::vector<Mount>& mounts);

/// The mount that holds the absolute path `resolved`, by the mount points alone. The path is not accessed, so
/// that a dead server cannot delay the answer. Fails: absent if no mount point is above it.
std::optional<Mount> mountAbove(const std::vector<Mount>& mounts, const std::filesystem::path& resolved);

/// Whether `option` ("ro", "noload") is one of a comma-separated list.
bool hasMountOption(std::string_view options, std::string_view option);

/// The value of "NAME=value" in a comma-separated list; absent without one.
std::optional<std::string> mountOptionValue(std::string_view options, std::string_view name);

} // namespace OndelCore::platform
