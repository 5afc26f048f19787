#include "ModelHarness.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/logging/LogStore.h"
#include "SampleRun.h"
#include "TarnwickKit/model/AnalyzerModel.h"
#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecordJson.h"
#include "TarnwickKit/model/TarnwickReport.h"

#include <gtest/gtest.h>

#include <fstream>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using OndelCore::logging::LogStore;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;
using Phase = AnalyzerModel::Phase;

/// The log's lines since it was last cleared, without their time stamps.
QStringList logged() {
    QStringList lines;
    for (const QString& line : QString::fromStdString(LogStore::shared().snapshot(100000)).split('\n'))
        lines << line.mid(static_cast<int>(qstrlen("2026-03-14 09:26:53.250  ")));
    return lines;
}

struct AnalyzerModelRuns : testing::Test {
    Engine engine;
    qint64 clock = 1714566896000; ///< 2024-05-01T12:34:56Z
    VolumeInfo volume;
    AnalyzerServices services = engine.services();

    AnalyzerModelRuns() {
        volume.name = "Data";
        volume.available = 1000;
        services.loadVolume = [this](const auto&) { return std::optional(volume); };
        services.probeCapabilities = [](const auto&) {
            VolumeCapabilities known;
            known.filesystemType = "ext4";
            return std::optional(known);
        };
        services.now = [this] { return QDateTime::fromMSecsSinceEpoch(clock += 500, Qt::UTC); };
        LogStore::shared().clear();
    }

    std::filesystem::path runFile(const RunRecord& run) const {
        return TarnwickReport{run}.handoffFile().value();
    }

    static void begin(AnalyzerModel& model, Engine& engine) {
        const std::size_t calls = engine.calls.size();
        model.start();
        turnUntil([&] { return engine.calls.size() > calls; });
    }
    void complete(AnalyzerModel& model) {
        begin(model, engine);
        engine.last().finish({});
        turnUntil([&] { return !model.isRunning(); });
    }
};

TEST_F(AnalyzerModelRuns, RecordsAFinishedRun) {
    AnalyzerModel model(services);
    model.select(std::filesystem::path("/"));
    model.setCurrentRunCollapsed(true);
    QStringList order;
    QObject::connect(&model, &AnalyzerModel::resultChanged, &model, [&] { order << "result"; });
    QObject::connect(&model, &AnalyzerModel::currentRunChanged, &model, [&] { order << "run"; });
    QObject::connect(&model.history(), &HistoryStore::runsChanged, &model, [&] { order << "history"; });
    QObject::connect(&model, &AnalyzerModel::phaseChanged, &model, [&] { order << "phase"; });
    clock = 1714566896000 - 500;
    begin(model, engine);
    volume.available = 1; // the record tells what was known when the run began
    BenchmarkResult result;
    result.sequentialWrite = ThroughputResult{1000, 1, 4096, {{1, 1234567890}}};
    engine.last().finish(result);
    turnUntil([&] { return !model.isRunning(); });

    ASSERT_TRUE(model.currentRun());
    const RunRecord& run = *model.currentRun();
    EXPECT_EQ(order, QStringList({"phase", "result", "run", "history", "phase"}));
    EXPECT_FALSE(model.currentRunCollapsed());
    EXPECT_EQ(run.date.toMSecsSinceEpoch(), 1714566896000);
    EXPECT_EQ(run.duration, 0.5);
    EXPECT_EQ(run.freeBytes, 1000);
    EXPECT_EQ(run.volumeName, "Data");
    EXPECT_EQ(model.history().runs(), std::vector<RunRecord>{run});
    EXPECT_TRUE(model.previousRuns().empty());
    EXPECT_EQ(logged(),
              QStringList({"notice  app  benchmark started fs=ext4 connection=External tests=5 "
                           "fillDisk=false writeBlock=1048576 bypassCache=true",
                           "notice  app  benchmark finished took=1000.0ms writeMBps=1234 readMBps=0"}));

    complete(model);
    ASSERT_EQ(model.previousRuns().size(), 1u);
    EXPECT_EQ(model.previousRuns().front().freeBytes, 1000);
    EXPECT_EQ(HistoryStore(engine.history.path()).runs().size(), 2u);
}

TEST_F(AnalyzerModelRuns, RecordsNothingOfARunThatDidNotFinish) {
    AnalyzerModel model(services);
    model.select(std::filesystem::path("/"));
    begin(model, engine);
    model.cancel();
    engine.last().fail(Cancelled());
    turnUntil([&] { return !model.isRunning(); });
    begin(model, engine);
    engine.last().fail(BenchmarkError(BenchmarkError::NotWritable{}));
    turnUntil([&] { return !model.isRunning(); });
    EXPECT_FALSE(model.currentRun());
    EXPECT_TRUE(model.history().runs().empty());
    QStringList lines = logged();
    EXPECT_EQ(lines.size(), 4);
    EXPECT_EQ(lines.value(1), "notice  app  benchmark cancelled");
    EXPECT_TRUE(lines.value(3).startsWith("error  app  benchmark failed error=\""))
        << lines.value(3).toStdString();
}

TEST_F(AnalyzerModelRuns, ImportsARunFile) {
    AnalyzerModel model(services);
    const RunRecord run = fullRun(2);
    model.setCurrentRunCollapsed(true);
    EXPECT_TRUE(model.importRun(runFile(run)));
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.currentRun(), run);
    EXPECT_FALSE(model.currentRunCollapsed());

    // A second import shows the file's copy; the stored one, meanwhile renamed, stays.
    model.renameRun(run.id, "Renamed");
    EXPECT_TRUE(model.importRun(runFile(run)));
    EXPECT_EQ(model.currentRun(), run);
    ASSERT_EQ(model.history().runs().size(), 1u);
    EXPECT_EQ(model.history().runs().front().customTitle, "Renamed");

    LogStore::shared().clear();
    const auto broken = engine.history.path() / "broken.tarnwickrun";
    std::ofstream(broken) << "{}";
    EXPECT_FALSE(model.importRun(broken));
    EXPECT_FALSE(model.importRun(engine.history.path() / "missing.tarnwickrun"));
    EXPECT_FALSE(model.importRun("/dev/zero"));
    EXPECT_EQ(model.history().runs().size(), 1u);
    EXPECT_EQ(logged().first(), "error  app  run from another app couldn't be read");

    model.select(std::filesystem::path("/"));
    EXPECT_EQ(model.phase(), Phase::Done) << "the last run stays on view";
    begin(model, engine);
    LogStore::shared().clear();
    EXPECT_TRUE(model.importRun(runFile(fullRun(2))));
    EXPECT_EQ(logged(), QStringList("notice  app  run imported shown=false"));
    EXPECT_TRUE(model.isRunning());
    EXPECT_FALSE(model.currentRun());
    EXPECT_EQ(model.history().runs().size(), 2u);
    engine.last().fail(BenchmarkError(BenchmarkError::NotWritable{}));
    turnUntil([&] { return !model.isRunning(); });
    EXPECT_TRUE(model.importRun(runFile(run)));
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.failureMessage(), "");
}

TEST_F(AnalyzerModelRuns, ComparesInTheOrderOnView) {
    AnalyzerModel model(services);
    std::vector<QUuid> ids;
    for (int count = 0; count < 3; ++count) {
        const RunRecord run = fullRun(2);
        ids.push_back(run.id);
        model.importRun(runFile(run));
    }
    // On view is the last one imported; the others follow from new to old.
    const auto compared = [&] {
        std::vector<QUuid> list;
        for (const RunRecord& run : model.comparison().value_or(std::vector<RunRecord>()))
            list.push_back(run.id);
        return list;
    };
    model.toggleCompareMode();
    EXPECT_TRUE(model.compareMode());
    model.toggleCompareSelection(ids[0]);
    model.beginComparison();
    EXPECT_FALSE(model.comparison());
    EXPECT_TRUE(model.compareMode());
    model.toggleCompareSelection(QUuid::createUuid());
    model.beginComparison();
    EXPECT_FALSE(model.comparison());
    model.toggleCompareSelection(ids[2]);
    model.beginComparison();
    EXPECT_EQ(compared(), (std::vector<QUuid>{ids[2], ids[0]}));
    EXPECT_FALSE(model.compareMode());
    EXPECT_TRUE(model.compareSelection().empty());

    model.renameRun(ids[0], "  New name ");
    EXPECT_EQ(model.comparison()->back().customTitle, "New name");
    EXPECT_EQ(model.currentRun()->customTitle, fullRun(2).customTitle);
    model.deleteRun(ids[1]);
    EXPECT_TRUE(model.isComparing()) << "the deleted run was none of those compared";
    model.deleteRun(ids[0]);
    EXPECT_FALSE(model.isComparing());

    model.toggleCompareMode();
    model.toggleCompareSelection(ids[2]);
    model.toggleCompareSelection(ids[2]);
    EXPECT_EQ(model.compareSelectionCount(), 0);
    model.toggleCompareSelection(ids[2]);
    model.toggleCompareMode();
    EXPECT_EQ(model.compareSelectionCount(), 0);
}

TEST_F(AnalyzerModelRuns, ForgetsWhatIsDeleted) {
    AnalyzerModel model(services);
    model.select(std::filesystem::path("/"));
    complete(model);
    const QUuid older = model.currentRun()->id;
    complete(model);
    const QUuid newer = model.currentRun()->id;
    model.setRunExpanded(older, true);
    model.toggleCompareMode();
    model.toggleCompareSelection(older);
    model.deleteRun(older);
    EXPECT_TRUE(model.expandedRunIDs().empty());
    EXPECT_TRUE(model.compareSelection().empty());
    EXPECT_EQ(model.phase(), Phase::Done);

    model.renameRun(newer, "Title");
    EXPECT_EQ(model.currentRun()->customTitle, "Title");
    model.renameRun(newer, " \n");
    EXPECT_EQ(model.currentRun()->customTitle, std::nullopt);
    EXPECT_EQ(model.history().runs().front().customTitle, std::nullopt);

    int changes = 0;
    QObject::connect(&model, &AnalyzerModel::previousRunsChanged, &model, [&] { ++changes; });
    model.deleteRun(newer);
    EXPECT_FALSE(model.currentRun());
    EXPECT_EQ(model.phase(), Phase::Idle);
    EXPECT_GT(changes, 0);

    complete(model);
    model.toggleCompareSelection(model.currentRun()->id);
    model.clearHistory();
    EXPECT_EQ(model.phase(), Phase::Idle);
    EXPECT_FALSE(model.currentRun());
    EXPECT_FALSE(model.compareMode());
    EXPECT_TRUE(model.compareSelection().empty());
    EXPECT_EQ(readRunFile(model.history().url()), "[]");

    begin(model, engine);
    engine.last().fail(BenchmarkError(BenchmarkError::NotWritable{}));
    turnUntil([&] { return !model.isRunning(); });
    model.clearHistory();
    EXPECT_EQ(model.phase(), Phase::Failed);
}

} // namespace

} // namespace TarnwickKit::model
