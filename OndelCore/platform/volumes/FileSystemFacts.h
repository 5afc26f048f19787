#pragma once

#include "OndelCore/platform/volumes/FileSystemReach.h"

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

/// A word of capability bits. A feature exists if it is claimed and the claim is valid.
struct CapabilityWord {
    std::uint32_t claimed = 0;
    std::uint32_t valid = 0;

    bool has(std::uint32_t bit) const { return (claimed & valid & bit) != 0; }
    bool knows(std::uint32_t bit) const { return (valid & bit) != 0; }
    /// Sets the claim of `bit` and makes it valid.
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

/// Facts that hold for all file systems of a type.
struct FileSystemFacts {
    std::string_view type; ///< the name in the fixed vocabulary: "ext4", "nfs", "cifs"
    std::string_view displayName;
    FileSystemReach reach = FileSystemReach::device;
    CapabilityWords capabilities;
    std::int64_t maxLinkCount = 0;  ///< links to one file; 0: depends on more than the type
    std::int64_t maxNameLength = 0; ///< characters; 0: the system's answer is right
};

/// What implements the file system.
enum class FileSystemDriver { kernel, program };

/// The facts of a type, as named by `fileSystemTypeName`. Fails: null for an unknown type.
const FileSystemFacts* fileSystemFacts(std::string_view type,
                                       FileSystemDriver driver = FileSystemDriver::kernel);

/// All rows.
std::span<const FileSystemFacts> allFileSystemFacts();

/// Converts the kernel's type name to the fixed vocabulary: "nfs4" is "nfs", "smb3" is "cifs". `source`: the
/// mount's source, which has the type for old FUSE programs. `onDevice`: the type in the device's superblock,
/// used for "fuseblk" only.
std::string fileSystemTypeName(std::string_view kernelType, std::string_view source = {},
                               const std::optional<std::string>& onDevice = {});

/// Whether this kernel type is a network file system.
bool isNetworkFileSystem(std::string_view type);

} // namespace OndelCore::platform
