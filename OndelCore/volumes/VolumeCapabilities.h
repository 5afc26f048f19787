#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/platform/storage/TriedAbilities.h"
#include "OndelCore/volumes/Location.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace OndelCore::volumes {

/// Whether a file system has a feature: yes, no, or unknown. Converts to bool; an unknown feature converts to
/// what is assumed.
class Capability {
public:
    /// Unknown.
    constexpr Capability() = default;
    constexpr Capability(bool isThere) // NOLINT(google-explicit-constructor): assigned like a flag
        : m_isThere(isThere)
        , m_isKnown(true) {}
    static constexpr Capability assumed(bool isThere) {
        Capability capability(isThere);
        capability.m_isKnown = false;
        return capability;
    }

    explicit constexpr operator bool() const { return m_isThere; }
    constexpr bool isKnown() const { return m_isKnown; }

    bool operator==(const Capability&) const = default;
    std::size_t hash() const { return hashFields(m_isThere, m_isKnown); }

private:
    bool m_isThere = false;
    bool m_isKnown = false;
};

/// The abilities of the file system of a path. A feature is present only if it is claimed and the claim is
/// valid; without a valid claim it is unknown. Threads: any.
struct ONDEL_PUBLIC VolumeCapabilities {
    QString filesystemType; ///< "ext4", "nfs", "cifs"
    std::optional<std::int64_t> maxNameLength;
    std::optional<std::int64_t> maxPathLength;
    std::optional<std::int64_t> maxLinkCount;
    Capability isCaseSensitive;
    Capability isCasePreserving = Capability::assumed(true); ///< assumed if unknown
    Capability supportsSparseFiles;
    Capability supportsHardLinks;
    Capability supportsSymbolicLinks;
    Capability supportsExtendedAttributes;
    Capability supportsNamedStreams;
    Capability supportsExtendedSecurity;
    Capability supportsCloning;
    Capability supportsSnapshots;
    Capability supportsJournal;
    Capability isJournalActive;
    Capability isSealed;
    std::int64_t blockSize = 0;     ///< bytes
    std::int64_t optimalIOSize = 0; ///< bytes; 0: unknown

    /// Asks the file system of a place; blocks on it. Fails: absent for a provider other than the local one,
    /// and for a path that cannot be asked.
    static std::optional<VolumeCapabilities> probe(const Location& location);
    /// The same of a path of this machine.
    static std::optional<VolumeCapabilities> probe(const std::filesystem::path& path);
    /// Replaces claims by the results of trials.
    void learn(const platform::TriedAbilities& tried);

    bool operator==(const VolumeCapabilities&) const = default;
    std::size_t hash() const;
};

} // namespace OndelCore::volumes
