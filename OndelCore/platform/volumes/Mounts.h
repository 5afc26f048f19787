#pragma once

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

/// One mounted file system as the system's mount table tells it (proc(5), "mountinfo").
/// Paths and source are the decoded bytes; they need not be valid UTF-8.
struct Mount {
    std::uint64_t id = 0;       ///< unique among the mounts of now; may be used again later
    std::uint64_t parentId = 0; ///< the mount that `mountPoint` lies in; not always in the table
    dev_t device = 0;           ///< the superblock's device number; anonymous for Btrfs, network, memory
    std::filesystem::path root; ///< what of the file system is mounted: "/" or a subvolume, a bind source
    std::filesystem::path mountPoint; ///< where it is mounted
    std::string type;                 ///< the kernel's name of the file system: "ext4", "fuse.sshfs"
    std::string source;               ///< the device's path, the server's address, or a word such as "tmpfs"
    std::string options;              ///< of this mount, comma-separated: "rw,nosuid"
    std::string superOptions;         ///< of the file system, comma-separated

    bool operator==(const Mount&) const = default;
};

/// All mounts of this process's view, in the table's order (a later one covers an earlier one).
/// Threads: any. Fails: an unreadable table is an empty list; a malformed line is left out.
std::vector<Mount> mounts(const std::filesystem::path& table = systemMountTable);

/// One reading of a mount table. Copies share it, so that all questions that are given one table agree and
/// the file is read once. Threads: any.
class MountTable {
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

/// How long the questions of this library wait for a volume unless a caller says otherwise: longer than a
/// sleeping disk or server takes.
constexpr std::chrono::milliseconds defaultPatience = std::chrono::seconds(30);

/// The mount that holds `path`. Threads: any. Fails: absent if the path does not resolve to a mount of this
/// view, or does not answer in time (see defaultPatience).
std::optional<Mount> mountOfPath(const std::filesystem::path& path);

/// The same among these mounts.
std::optional<Mount> mountOfPathIn(const std::vector<Mount>& mounts, const std::filesystem::path& path,
                                   std::chrono::milliseconds patience = defaultPatience);

/// The mount that holds an open file or folder, without asking its file system. Threads: any. Fails: absent
/// if it is none of these.
std::optional<Mount> mountOfDescriptor(int descriptor, const std::vector<Mount>& mounts);

/// The mount that holds the absolute path `resolved`, by the mount points alone: nothing on the path is
/// touched, so that a dead server cannot delay the answer. Fails: absent if no mount point is above it.
std::optional<Mount> mountAbove(const std::vector<Mount>& mounts, const std::filesystem::path& resolved);

/// Whether `option` ("ro", "noload") is one of a comma-separated list.
bool hasMountOption(std::string_view options, std::string_view option);

/// The value of "NAME=value" in a comma-separated list; absent without one.
std::optional<std::string> mountOptionValue(std::string_view options, std::string_view name);

} // namespace OndelCore::platform
