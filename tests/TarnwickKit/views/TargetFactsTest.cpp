#include "TarnwickKit/views/sidebar/TargetFacts.h"

#include "TarnwickKit/views/runs/RunFacts.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

using namespace TarnwickKit::views;
using OndelCore::volumes::VolumeCapabilities;

namespace {

/// What the sidebar shows of a file system: its rows as "label: value", its chips, and what is not known.
struct Shown {
    QStringList rows;
    QStringList chips;
    QStringList unknown;
};

Shown shown(const VolumeCapabilities& capabilities) {
    const test::TemporaryFolder folder;
    auto services = TarnwickKit::model::AnalyzerServices::real();
    services.historyFolder = folder.path();
    services.cleanupOrphans = [](const auto&) {};
    services.loadVolume = [](const auto&) { return std::nullopt; };
    services.probeCapabilities = [capabilities](const auto&) { return std::optional(capabilities); };
    services.volumePatience = std::chrono::hours(1);
    services.readHealth = [](const auto&) { return std::nullopt; };
    TarnwickKit::model::AnalyzerModel model(services);
    TargetFacts facts;
    facts.setAnalyzer(&model);
    model.select(folder.path());
    Shown result{.rows = {}, .chips = facts.features(), .unknown = facts.unknownFeatures()};
    for (const QVariant& item : facts.capabilities())
        result.rows << item.value<InfoItem>().label + ": " + item.value<InfoItem>().value;
    return result;
}

TEST(TargetFacts, NeverShowWhatIsNotKnownAsMissing) {
    VolumeCapabilities capabilities;
    EXPECT_EQ(shown(capabilities).rows.mid(1, 2),
              (QStringList{"Format: Case not known", "Optimal I/O size: --"}));
    EXPECT_TRUE(shown(capabilities).chips.isEmpty());
    EXPECT_EQ(shown(capabilities).unknown.size(), 6);

    capabilities.isCaseSensitive = false;
    capabilities.supportsHardLinks = true;
    capabilities.supportsSnapshots = false;
    capabilities.optimalIOSize = 1048576;
    capabilities.blockSize = 4096;
    const Shown some = shown(capabilities);
    EXPECT_EQ(some.rows.mid(1, 3),
              (QStringList{"Format: Case-insensitive", "Optimal I/O size: 1 MiB", "Block size: 4 KiB"}));
    EXPECT_EQ(some.chips, QStringList("Hard links"));
    EXPECT_EQ(some.unknown, (QStringList{"Sparse files", "Cloning", "Symlinks", "Xattr"}));
    capabilities.isCaseSensitive = true;
    capabilities.learn({.sparseFiles = true, .cloning = false});
    EXPECT_EQ(shown(capabilities).rows.at(1), "Format: Case-sensitive");
    EXPECT_EQ(shown(capabilities).chips, (QStringList{"Sparse files", "Hard links"}));
    EXPECT_EQ(shown(capabilities).unknown, (QStringList{"Symlinks", "Xattr"}));
}

} // namespace
