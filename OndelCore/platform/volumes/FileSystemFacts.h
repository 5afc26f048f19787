#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace OndelCore::platform {

/// Bits of the format word.
enum FormatCapability : std::uint32_t {
    formatSymbolicLinks = 0x2,
    formatHardLinks = 0x4,
    formatJournal = 0x8,
    formatJournalActive = 0x10,
    formatSparseFiles = 0x40,
    formatCaseSensitive = 0x100,
    formatCasePreserving = 0x200,
    formatSealed = 0x2000000,
};

/// Bits of the interfaces word.
enum InterfaceCapability : std::uint32_t {
    interfaceExtendedSecurity = 0x400,
    interfaceNamedStreams = 0x2000,
    interfaceExtendedAttributes = 0x4000,
    interfaceClone = 0x10000,
    interfaceSnapshot = 0x20000,
};

/// One word of capability bits: a feature is there only when it is claimed and the claim is valid.
struct CapabilityWord {
    std::uint32_t claimed = 0;
    std::uint32_t valid = 0;

    bool has(std::uint32_t bit) const { return (claimed & valid & bit) != 0; }
    bool knows(std::uint32_t bit) const { return (valid & bit) != 0; }
    /// Makes what is known of `bit` certain.
    void state(std::uint32_t bit, bool present) {
        valid |= bit;
        claimed = present ? claimed | bit : claimed & ~bit;
    }
    bool operator==(const CapabilityWord&) const = default;
};

struct CapabilityWords {
    CapabilityWord format;
    CapabilityWord interfaces;
    bool operator==(const CapabilityWords&) const = default;
};

/// Where a file system of a type keeps its data.
enum class FileSystemReach {
    device,  ///< on a block device or a pool of them
    memory,  ///< in the machine's memory, gone at power-off
    layered, ///< on other file systems of this machine
    network, ///< with another machine, or with the host of this virtual one
};

/// What is known of every file system of one type.
struct FileSystemFacts {
    std::string_view type; ///< the name in the system's own vocabulary: "ext4", "nfs", "cifs"
    std::string_view displayName;
    FileSystemReach reach = FileSystemReach::device;
    CapabilityWords capabilities;
    std::int64_t maxLinkCount = 0;  ///< names of one file; 0: not known from the type alone
    std::int64_t maxNameLength = 0; ///< characters; 0: what the system answers holds
};

/// Who reads and writes the file system.
enum class FileSystemDriver { kernel, program };

/// The facts of a type as normalized by `fileSystemTypeName`. Fails: null for a type without a row.
const FileSystemFacts* fileSystemFacts(std::string_view type,
                                       FileSystemDriver driver = FileSystemDriver::kernel);

/// All rows.
std::span<const FileSystemFacts> allFileSystemFacts();

/// The kernel's type name brought to the fixed vocabulary: "nfs4" is "nfs", "smb3" is "cifs". `source` tells
/// what old FUSE programs put there instead; `onDevice` is what the device's superblock says, asked for
/// "fuseblk" only.
std::string fileSystemTypeName(std::string_view kernelType, std::string_view source = {},
                               const std::optional<std::string>& onDevice = {});

/// Whether files of this kernel type live with another machine.
bool isNetworkFileSystem(std::string_view type);

} // namespace OndelCore::platform
