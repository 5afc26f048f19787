#pragma once

#include "OndelCore/platform/FileSystemAnswers.h"
#include "OndelCore/platform/SystemSources.h"
#include "OndelCore/volumes/Location.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>

namespace OndelCore::volumes {

/// What the file system of a path can do. A feature counts as present only when the file system both claims
/// it and says that the claim is valid. Threads: any.
struct VolumeCapabilities {
    QString filesystemType; ///< "ext4", "nfs", "cifs"
    std::optional<std::int64_t> maxNameLength;
    std::optional<std::int64_t> maxPathLength;
    std::optional<std::int64_t> maxLinkCount;
    bool isCaseSensitive = false;
    bool isCasePreserving = true; ///< the one feature that is assumed of an unknown file system
    bool supportsSparseFiles = false;
    bool supportsHardLinks = false;
    bool supportsSymbolicLinks = false;
    bool supportsExtendedAttributes = false;
    bool supportsNamedStreams = false;
    bool supportsExtendedSecurity = false;
    bool supportsCloning = false;
    bool supportsSnapshots = false;
    bool supportsJournal = false;
    bool isJournalActive = false;
    bool isSealed = false;
    std::int64_t blockSize = 0;     ///< bytes
    std::int64_t optimalIOSize = 0; ///< bytes; 0 where nothing can be told

    /// Fails: absent for a provider other than the local one, and for a path that cannot be asked.
    static std::optional<VolumeCapabilities> probe(const Location& location,
                                                   const platform::SystemSources& sources = {});
    static std::optional<VolumeCapabilities> probe(const std::filesystem::path& path,
                                                   const platform::SystemSources& sources = {});
    /// The record out of the file system's answers.
    static VolumeCapabilities from(const platform::FileSystemAnswers& answers);

    bool operator==(const VolumeCapabilities&) const = default;
};

} // namespace OndelCore::volumes

template <>
struct std::hash<OndelCore::volumes::VolumeCapabilities> {
    std::size_t operator()(const OndelCore::volumes::VolumeCapabilities& capabilities) const noexcept;
};
