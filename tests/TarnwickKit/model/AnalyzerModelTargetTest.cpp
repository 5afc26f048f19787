#include "ModelHarness.h"
#include "TarnwickKit/model/session/AnalyzerTarget.h"
#include "support/PortalFolder.h"

#include <QTimeZone>

#include <latch>
#include <map>

namespace TarnwickKit::model {

namespace {

using OndelCore::health::DiskSMART;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;

DiskSMART health(const char* kind) {
    return {DiskSMART::Status::verified, kind, {{"Power on", "3 hours", false}}};
}

/// Records the questions; answers them immediately if it has an answer.
struct Dialogs : AnalyzerDialogs {
    std::optional<std::filesystem::path> answer;
    std::optional<std::filesystem::path> startingAt;
    QStringList asked;

    void askForFolder(const QString& message, const QString& prompt,
                      const std::optional<std::filesystem::path>& start, Chosen chosen) override {
        asked << message << prompt;
        startingAt = start;
        if (answer)
            chosen(*answer);
    }
    void askForTextFile(const QString& proposedName, Chosen chosen) override {
        asked << proposedName;
        if (answer)
            chosen(*answer);
    }
    void showError(const QString& sentence) override { asked << sentence; }
};

struct AnalyzerModelTarget : testing::Test {
    Engine engine;
    std::optional<VolumeInfo> volume = VolumeInfo();
    std::optional<VolumeCapabilities> capabilities = VolumeCapabilities();
    AnalyzerServices services = engine.services();
    Dialogs dialogs;

    AnalyzerModelTarget() {
        services.loadVolume = [this](const auto&) { return volume; };
        services.probeCapabilities = [this](const auto&) { return capabilities; };
    }
    /// A file that is removed with the test's folder.
    std::filesystem::path file(const char* name) const { return engine.history.path() / name; }
};

TEST_F(AnalyzerModelTarget, IsTheFolderBehindAPortal) {
    const test::TemporaryFolder behind;
    test::PortalFolder portal(behind.path());
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    AnalyzerTarget target(services);
    target.select(portal.path());
    EXPECT_EQ(target.folder(), portal.path());
    portal.tell(behind.path().string());
    target.select(portal.path());
    EXPECT_EQ(target.folder(), behind.path());
}

TEST(VolumeFacts, NamesTheConnection) {
    using Kind = RunRecord::Kind;
    struct Case {
        bool isKnown, isInternal, isRemovable;
        const char *type, *label, *icon;
        Kind kind;
    };
    const char* network = "externaldrive.connected.to.line.below";
    for (const Case& each :
         {Case{false, false, false, "", "--", "externaldrive", Kind::external},
          Case{true, true, false, "ext4", "Internal", "internaldrive", Kind::internalDrive},
          Case{true, true, true, "ext4", "Removable", "externaldrive", Kind::external},
          Case{true, false, true, "ext4", "Removable", "externaldrive", Kind::external},
          Case{true, false, false, "ext4", "External", "externaldrive", Kind::external},
          Case{true, true, true, "NFS", "Network", network, Kind::network},
          Case{false, false, false, "nfs", "Network", "externaldrive", Kind::network}}) {
        VolumeFacts facts{.info = {}, .capabilities = VolumeCapabilities()};
        if (each.isKnown)
            facts.info = VolumeInfo{"", "", 0, 0, 0, each.isInternal, each.isRemovable, false, false, {}, {}};
        facts.capabilities->filesystemType = each.type;
        EXPECT_EQ(facts.connectionLabel(), each.label);
        EXPECT_EQ(facts.icon(), each.icon) << each.label;
        EXPECT_EQ(facts.kind(), each.kind) << each.label;
    }
}

TEST_F(AnalyzerModelTarget, OffersTheOptimalBlock) {
    const auto labelsFor = [this](std::int64_t optimalIOSize) {
        capabilities->optimalIOSize = optimalIOSize;
        AnalyzerModel model(services);
        model.setWriteBlock(1);
        model.setReadBlock(2);
        model.setRandomBlock(3);
        model.select(std::filesystem::path("/"));
        EXPECT_EQ(model.randomBlock(), 3);
        return QString("%1 %2: ").arg(model.writeBlock()).arg(model.readBlock()) +
               model.blockLabels().join(", ");
    };
    EXPECT_EQ(labelsFor(0), "1 2: 4 KiB, 64 KiB, 256 KiB, 1 MiB, 4 MiB");
    EXPECT_EQ(labelsFor(512), "4096 4096: 4 KiB  ·  optimal, 64 KiB, 256 KiB, 1 MiB, 4 MiB");
    EXPECT_EQ(labelsFor(4097), "8192 8192: 4 KiB, 8 KiB  ·  optimal, 64 KiB, 256 KiB, 1 MiB, 4 MiB");
    EXPECT_EQ(labelsFor(1048576), "1048576 1048576: 4 KiB, 64 KiB, 256 KiB, 1 MiB  ·  optimal, 4 MiB");
}

/// A run teaches what the file system can do. That must not reset the block sizes.
TEST_F(AnalyzerModelTarget, RunKeepsTheChosenBlock) {
    capabilities->optimalIOSize = 65536;
    AnalyzerModel model(services);
    model.select(std::filesystem::path("/"));
    model.setWriteBlock(4096);
    engine.begin(model);
    BenchmarkResult result;
    result.tried.sparseFiles = true;
    engine.finish(model, result);
    EXPECT_TRUE(model.capabilities()->supportsSparseFiles);
    EXPECT_EQ(model.writeBlock(), 4096);
}

TEST(VolumeMenuItem, DescribesAVolume) {
    struct Case {
        QString format, type;
        std::optional<std::int64_t> total;
        bool isInternal, isRemovable;
        const char *detail, *image;
    };
    for (const Case& each : {
             Case{"Ext4", "ext4", 5368709120, true, false, "Ext4 · 5.0 GiB", "internaldrive"},
             Case{"", "ext4", 5368709120, true, true, "5.0 GiB", "externaldrive"},
             Case{"NFS", "nfs", std::nullopt, true, false, "NFS", "externaldrive.connected.to.line.below"},
             Case{"", "what", 0, false, false, "", "externaldrive"},
         }) {
        const auto item = VolumeMenuItem::from(
            {"/mnt", "Data", each.format, each.type, each.total, each.isInternal, each.isRemovable});
        EXPECT_EQ(item, (VolumeMenuItem{"/mnt", "Data", each.image, each.detail}));
    }
}

TEST_F(AnalyzerModelTarget, IgnoresStaleHealth) {
    const auto gate = std::make_shared<std::latch>(1);
    services.readHealth = [gate](const std::filesystem::path& path) {
        if (path == "/slow")
            gate->wait();
        return std::optional(health(path.filename().c_str()));
    };
    AnalyzerModel model(services);
    QStringList kinds;
    QObject::connect(&model, &AnalyzerModel::smartChanged, &model, [&] {
        kinds << (model.smart() ? QString::fromStdString(model.smart()->kind) : "none");
    });
    model.select(std::filesystem::path("/slow"));
    model.select(std::filesystem::path("/quick"));
    turnUntil([&] { return model.smart().has_value(); });
    gate->count_down();
    model.select(std::filesystem::path("/next"));
    turnUntil([&] { return model.smart().has_value(); });
    EXPECT_EQ(kinds, QStringList({"quick", "none", "next"}));
}

TEST_F(AnalyzerModelTarget, TakesLateFactsOfAHangingVolume) {
    const auto gate = std::make_shared<std::latch>(1);
    services.volumePatience = std::chrono::milliseconds(1);
    services.loadVolume = [gate](const OndelCore::volumes::Location& place) {
        gate->wait();
        return std::optional(VolumeInfo{"", "", 0, 0, 0, false, false, false, false, place.path, {}});
    };
    services.probeCapabilities = [](const auto&) { // which may be asked after the test
        VolumeCapabilities answer;
        answer.optimalIOSize = 65536;
        return std::optional(answer);
    };
    AnalyzerModel model(services);
    int changes = 0;
    QObject::connect(&model, &AnalyzerModel::volumeChanged, &model, [&] { ++changes; });
    model.select(std::filesystem::path("/hangs"));
    model.select(std::filesystem::path("/hangs too"));
    EXPECT_FALSE(model.volumeInfo() || model.capabilities());
    EXPECT_TRUE(model.canRun());
    gate->count_down();
    turnUntil([&] { return model.volumeInfo().has_value(); });
    EXPECT_EQ(model.volumeInfo()->volumeURL, "/hangs too");
    EXPECT_EQ(model.readBlock(), 65536);
    EXPECT_EQ(changes, 3) << "the first volume's facts are dropped";
}

TEST_F(AnalyzerModelTarget, RunUsesFactsThatArriveLate) {
    const auto gates =
        std::make_shared<std::map<std::filesystem::path, std::latch>>(); // may outlive the test
    for (const char* path : {"/old", "/wakes", "/late"})
        gates->try_emplace(path, 1);
    services.loadVolume = [gates](const OndelCore::volumes::Location& place) {
        gates->at(place.path).wait();
        const QString name = QString::fromStdString(place.path.filename());
        return std::optional(VolumeInfo{name, "", 1000, 0, 0, false, false, false, false, {}, {}});
    };
    services.volumePatience = std::chrono::milliseconds(1);
    AnalyzerModel model(services);
    const auto nameAfterRun = [&] {
        engine.finish(model);
        return model.currentRun()->volumeName;
    };
    model.select(std::filesystem::path("/old"));
    model.select(std::filesystem::path("/wakes"));
    engine.begin(model);
    gates->at("/old").count_down();
    gates->at("/wakes").count_down();
    turnUntil([&] { return model.volumeInfo().has_value(); });
    EXPECT_TRUE(model.isRunning());
    EXPECT_EQ(nameAfterRun(), "wakes");
    EXPECT_EQ(model.history().runs().front().capacityBytes, 1000);

    model.select(std::filesystem::path("/late"));
    EXPECT_FALSE(model.volumeInfo());
    engine.begin(model);
    EXPECT_EQ(nameAfterRun(), "Volume");
    gates->at("/late").count_down();
    turnUntil([&] { return model.volumeInfo().has_value(); });
    EXPECT_EQ(model.currentRun()->volumeName, "Volume") << "late facts do not change a stored record";
}

TEST_F(AnalyzerModelTarget, HealthReadMayOutliveTheModel) {
    const auto gate = std::make_shared<std::latch>(1);
    const auto ended = std::make_shared<std::latch>(1);
    services.readHealth = [gate, ended](const std::filesystem::path&) {
        gate->wait();
        ended->count_down();
        return std::optional(health("late"));
    };
    std::make_unique<AnalyzerModel>(services)->select(std::filesystem::path("/"));
    gate->count_down();
    ended->wait();
}

TEST_F(AnalyzerModelTarget, AsksForAFolder) {
    AnalyzerModel model(services);
    model.chooseFolder();
    model.setDialogs(&dialogs);
    model.chooseFolder();
    EXPECT_EQ(dialogs.asked.join(" / "),
              "Choose a folder on the volume to test (a temporary working folder is "
              "written there and removed). / Select");
    EXPECT_EQ(dialogs.startingAt, std::nullopt);
    EXPECT_FALSE(model.targetFolder());
    model.chooseFolder(std::filesystem::path("/"));
    EXPECT_EQ(dialogs.startingAt, std::filesystem::path(getenv("HOME")));
    dialogs.answer = "/tmp";
    model.chooseFolder(std::filesystem::path("/usr"));
    EXPECT_EQ(dialogs.startingAt, "/usr");
    EXPECT_EQ(model.targetFolder(), "/tmp");
}

TEST_F(AnalyzerModelTarget, OpensTheCheckOfAFolder) {
    AnalyzerModel model(services);
    model.setDialogs(&dialogs);
    model.openCheck();
    EXPECT_EQ(dialogs.asked.size(), 2) << "a check of nothing";
    EXPECT_FALSE(model.showsCheck());
    dialogs.answer = "/tmp";
    model.openCheck();
    ASSERT_EQ(model.targetFolder(), "/tmp");
    EXPECT_TRUE(model.showsCheck());
    model.setShowsCheck(false);
    model.openCheck();
    EXPECT_TRUE(model.showsCheck());
    EXPECT_EQ(dialogs.asked.size(), 4) << "the folder that is chosen is asked for";
    engine.begin(model);
    model.openCheck();
    EXPECT_FALSE(model.showsCheck()) << "a check beside a run";
    engine.finish(model);
}

TEST_F(AnalyzerModelTarget, ExportsTheHealth) {
    services.readHealth = [](const auto&) { return std::optional(health("NVMe")); };
    services.driveIdentity = [](const auto&) { return DriveIdentity{"ACME", std::nullopt}; };
    services.now = [] { return QDateTime(QDate(2026, 3, 14), QTime(9, 26), QTimeZone::utc()); };
    AnalyzerModel model(services);
    model.setDialogs(&dialogs);
    model.exportSMART();
    EXPECT_TRUE(dialogs.asked.isEmpty());
    model.select(std::filesystem::path("/"));
    turnUntil([&] { return model.smart().has_value(); });

    model.exportSMART();
    EXPECT_EQ(dialogs.asked, QStringList("S.M.A.R.T. ACME 2026-03-14.txt"));
    dialogs.answer = file("report.txt");
    model.exportSMART();
    EXPECT_NE(test::contentOf(*dialogs.answer).find("Power on"), std::string::npos);
    dialogs.asked.clear();
    dialogs.answer = file("no such folder/report.txt");
    model.exportSMART();
    EXPECT_EQ(dialogs.asked.last(), "No such file or directory");
}

} // namespace

} // namespace TarnwickKit::model
