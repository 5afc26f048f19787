#include "OndelCore/volumes/VolumeCapabilities.h"

#include "OndelCore/volumes/VolumeQuestions.h"

#include <array>

namespace OndelCore::volumes {

namespace {

using namespace platform;

struct Feature {
    Capability VolumeCapabilities::* field;
    CapabilityWord CapabilityWords::* word;
    std::uint32_t bit;
};
constexpr std::array features = {
    Feature{&VolumeCapabilities::isCaseSensitive, &CapabilityWords::format, formatCaseSensitive},
    Feature{&VolumeCapabilities::isCasePreserving, &CapabilityWords::format, formatCasePreserving},
    Feature{&VolumeCapabilities::supportsSparseFiles, &CapabilityWords::format, formatSparseFiles},
    Feature{&VolumeCapabilities::supportsHardLinks, &CapabilityWords::format, formatHardLinks},
    Feature{&VolumeCapabilities::supportsSymbolicLinks, &CapabilityWords::format, formatSymbolicLinks},
    Feature{&VolumeCapabilities::supportsExtendedAttributes, &CapabilityWords::interfaces,
            interfaceExtendedAttributes},
    Feature{&VolumeCapabilities::supportsNamedStreams, &CapabilityWords::interfaces, interfaceNamedStreams},
    Feature{&VolumeCapabilities::supportsExtendedSecurity, &CapabilityWords::interfaces,
            interfaceExtendedSecurity},
    Feature{&VolumeCapabilities::supportsCloning, &CapabilityWords::interfaces, interfaceClone},
    Feature{&VolumeCapabilities::supportsSnapshots, &CapabilityWords::interfaces, interfaceSnapshot},
    Feature{&VolumeCapabilities::supportsJournal, &CapabilityWords::format, formatJournal},
    Feature{&VolumeCapabilities::isJournalActive, &CapabilityWords::format, formatJournalActive},
    Feature{&VolumeCapabilities::isSealed, &CapabilityWords::format, formatSealed},
};

} // namespace

std::optional<VolumeCapabilities> VolumeCapabilities::probe(const Location& location) {
    return probeCapabilities(location, {});
}

std::optional<VolumeCapabilities> VolumeCapabilities::probe(const std::filesystem::path& path) {
    return probe(Location::local(path));
}

std::optional<VolumeCapabilities> probeCapabilities(const Location& location, const SystemSources& sources) {
    const auto answers = location.isLocal() ? askFileSystem(location.path, sources) : std::nullopt;
    return answers ? std::optional(capabilitiesOf(*answers)) : std::nullopt;
}

VolumeCapabilities capabilitiesOf(const FileSystemAnswers& answers) {
    VolumeCapabilities capabilities;
    capabilities.filesystemType = QString::fromStdString(answers.type);
    capabilities.maxNameLength = answers.maxNameLength;
    capabilities.maxPathLength = answers.maxPathLength;
    capabilities.maxLinkCount = answers.maxLinkCount;
    capabilities.blockSize = answers.blockSizeBytes;
    capabilities.optimalIOSize = answers.optimalIOSizeBytes;
    if (answers.capabilities)
        for (const Feature& feature : features) {
            const CapabilityWord& word = (*answers.capabilities).*feature.word;
            capabilities.*feature.field =
                word.knows(feature.bit) ? Capability(word.has(feature.bit)) : Capability();
        }
    return capabilities;
}

void VolumeCapabilities::learn(const TriedAbilities& tried) {
    if (tried.sparseFiles)
        supportsSparseFiles = *tried.sparseFiles;
    if (tried.cloning)
        supportsCloning = *tried.cloning;
}

std::size_t VolumeCapabilities::hash() const {
    std::size_t hash =
        hashFields(filesystemType, maxNameLength, maxPathLength, maxLinkCount, blockSize, optimalIOSize);
    for (const Feature& feature : features)
        hash = mixed(hash, (this->*feature.field).hash());
    return hash;
}

} // namespace OndelCore::volumes
