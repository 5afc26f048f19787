#include "TarnwickKit/views/sidebar/TargetFacts.h"

#include "TarnwickKit/views/runs/RunFacts.h"
#include "tests/TarnwickKit/model/ModelHarness.h"

using namespace TarnwickKit::views;
using OndelCore::health::DiskSMART;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;

namespace {

/// What the sidebar shows of a file system: rows as "label: value", the chips, and what is not known.
struct Shown {
    QStringList rows;
    QStringList chips;
    QStringList unknown;
};

QStringList rows(const QList<InfoItem>& items) {
    QStringList result;
    for (const InfoItem& row : items)
        result << row.label + ": " + row.value + (row.warning ? "!" : "");
    return result;
}

/// The facts of a target with these answers of the system.
struct Target {
    TarnwickKit::model::Engine engine;
    std::unique_ptr<TarnwickKit::model::AnalyzerModel> model;
    TargetFacts facts;

    explicit Target(const VolumeCapabilities& capabilities,
                    const std::optional<VolumeInfo>& volume = std::nullopt,
                    const std::optional<DiskSMART>& health = std::nullopt) {
        auto services = engine.services();
        services.loadVolume = [volume](const auto&) { return volume; };
        services.probeCapabilities = [capabilities](const auto&) { return std::optional(capabilities); };
        services.readHealth = [health](const auto&) { return health; };
        model = std::make_unique<TarnwickKit::model::AnalyzerModel>(services);
        facts.setAnalyzer(model.get());
        model->select(engine.history.path());
    }
};

Shown shown(const VolumeCapabilities& capabilities) {
    const Target target(capabilities);
    return {.rows = rows(target.facts.capabilities()),
            .chips = target.facts.features(),
            .unknown = target.facts.unknownFeatures()};
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

TEST(TargetFacts, ShowEachFigureInItsRow) {
    VolumeCapabilities capabilities;
    capabilities.filesystemType = "ext4";
    capabilities.isCaseSensitive = true;
    capabilities.optimalIOSize = 1048576;
    capabilities.blockSize = 4096;
    capabilities.maxNameLength = 255;
    capabilities.maxPathLength = 4095;
    VolumeInfo volume;
    volume.name = "Data\n";
    volume.format = "Ext4";
    volume.total = std::int64_t{2} << 40;
    volume.available = std::int64_t{1} << 40;
    volume.isRemovable = true;
    const Target target(capabilities, volume);
    EXPECT_EQ(rows(target.facts.capabilities()).join("; "),
              "File system: EXT4; Format: Case-sensitive; Optimal I/O size: 1 MiB; Block size: 4 KiB; "
              "Max filename: 255 chars; Max path: 4095; Capacity: 2.0 TiB; Free: 1.0 TiB");
    EXPECT_EQ(target.facts.volumeName(), "Data ");
    EXPECT_EQ(target.facts.volumeLine(), "Ext4 · 2.0 TiB removable");
}

TEST(TargetFacts, TellHealthFromItsAbsence) {
    using Status = DiskSMART::Status;
    const DiskSMART good{Status::verified, "NVMe", {{"Temperature", "31 °C"}, {"Wear", "99 %", true}}, ""};
    const DiskSMART bad{Status::failing, "ATA", {{"Power on", "9 h"}}, "One disk is asleep"};
    const DiskSMART none{Status::notSupported, "", {}, "Not allowed"};
    const struct {
        DiskSMART health;
        bool isThere, isFailing;
        const char *note, *shown;
    } cases[] = {
        {good, true, false, "", "Temperature: 31 °C; Wear: 99 %!"},
        {bad, true, true, "One disk is asleep", "Power on: 9 h"},
        {none, false, false, "No S.M.A.R.T. figures: Not allowed", ""},
        {{}, false, false, "", ""},
    };
    for (const auto& c : cases) {
        const Target target({}, std::nullopt, c.health);
        TarnwickKit::model::turnUntil([&] { return target.model->smart().has_value(); });
        EXPECT_EQ(target.facts.hasHealth(), c.isThere) << c.note;
        EXPECT_EQ(target.facts.isFailing(), c.isFailing) << c.note;
        EXPECT_EQ(target.facts.healthNote(), c.note);
        EXPECT_EQ(rows(target.facts.health()).join("; "), c.shown);
    }
}

} // namespace
