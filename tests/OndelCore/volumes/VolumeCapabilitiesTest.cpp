#include "OndelCore/volumes/VolumeCapabilities.h"

#include <gtest/gtest.h>

using namespace OndelCore::volumes;
using namespace OndelCore::platform;

namespace {

struct Feature {
    Capability VolumeCapabilities::* field;
    CapabilityWord CapabilityWords::* word;
    std::uint32_t bit;
};

// The bits as numbers, to detect wrong constants.
const std::vector<Feature> features{
    {&VolumeCapabilities::isCaseSensitive, &CapabilityWords::format, 0x100},
    {&VolumeCapabilities::isCasePreserving, &CapabilityWords::format, 0x200},
    {&VolumeCapabilities::supportsSparseFiles, &CapabilityWords::format, 0x40},
    {&VolumeCapabilities::supportsHardLinks, &CapabilityWords::format, 0x4},
    {&VolumeCapabilities::supportsSymbolicLinks, &CapabilityWords::format, 0x2},
    {&VolumeCapabilities::supportsExtendedAttributes, &CapabilityWords::interfaces, 0x4000},
    {&VolumeCapabilities::supportsNamedStreams, &CapabilityWords::interfaces, 0x2000},
    {&VolumeCapabilities::supportsExtendedSecurity, &CapabilityWords::interfaces, 0x400},
    {&VolumeCapabilities::supportsCloning, &CapabilityWords::interfaces, 0x10000},
    {&VolumeCapabilities::supportsSnapshots, &CapabilityWords::interfaces, 0x20000},
    {&VolumeCapabilities::supportsJournal, &CapabilityWords::format, 0x8},
    {&VolumeCapabilities::isJournalActive, &CapabilityWords::format, 0x10},
    {&VolumeCapabilities::isSealed, &CapabilityWords::format, 0x2000000},
};

VolumeCapabilities from(const std::optional<CapabilityWords>& words) {
    FileSystemAnswers answers;
    answers.capabilities = words;
    return VolumeCapabilities::from(answers);
}

TEST(VolumeCapabilities, NeedAValidClaim) {
    for (const Feature& feature : features) {
        CapabilityWords words;
        (words.*feature.word).claimed = feature.bit;
        EXPECT_EQ(from(words).*feature.field, Capability());
        (words.*feature.word).valid = ~feature.bit;
        EXPECT_EQ(from(words).*feature.field, Capability());
        (words.*feature.word).valid = feature.bit;
        const VolumeCapabilities one = from(words);
        for (const Feature& other : features)
            EXPECT_EQ(one.*other.field, other.field == feature.field ? Capability(true) : Capability())
                << feature.bit << ' ' << other.bit;
        (words.*feature.word).claimed = 0;
        EXPECT_EQ(from(words).*feature.field, Capability(false));
    }
}

TEST(VolumeCapabilities, TakeEachLimitFromItsAnswer) {
    const auto capabilities = VolumeCapabilities::from({.type = "ext4",
                                                        .blockSizeBytes = 4096,
                                                        .optimalIOSizeBytes = 1048576,
                                                        .maxNameLength = 255,
                                                        .maxPathLength = 4095,
                                                        .maxLinkCount = 65000,
                                                        .capabilities = {}});
    EXPECT_EQ(capabilities.filesystemType, "ext4");
    EXPECT_EQ(capabilities.blockSize, 4096);
    EXPECT_EQ(capabilities.optimalIOSize, 1048576);
    EXPECT_EQ(capabilities.maxNameLength, 255);
    EXPECT_EQ(capabilities.maxPathLength, 4095);
    EXPECT_EQ(capabilities.maxLinkCount, 65000);
}

TEST(VolumeCapabilities, AssumeOnlyCasePreservationByDefault) {
    const VolumeCapabilities unknown = from(std::nullopt);
    for (const Feature& feature : features) {
        EXPECT_EQ(bool{unknown.*feature.field}, feature.field == &VolumeCapabilities::isCasePreserving);
        EXPECT_FALSE((unknown.*feature.field).isKnown());
    }
    EXPECT_FALSE(from(CapabilityWords()).isCasePreserving);
}

} // namespace
