#include "ModelHarness.h"
#include "OndelCore/logging/LogStore.h"
#include "SampleRun.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"
#include "TarnwickKit/model/session/RunLibrary.h"

#include <QTimer>

#include <fstream>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using OndelCore::logging::LogStore;
using Phase = AnalyzerModel::Phase;

/// The log since it was last cleared, without time stamps.
QStringList logged() {
    QStringList lines;
    for (const QString& line : QString::fromStdString(LogStore::shared().snapshot(100000)).split('\n'))
        lines << line.mid(static_cast<int>(qstrlen("2026-03-14 09:26:53.250  ")));
    return lines;
}

struct AnalyzerModelRuns : testing::Test {
    Engine engine;
    qint64 clock = 1714566896000 - 500; ///< half a second before 2024-05-01T12:34:56Z
    OndelCore::volumes::VolumeInfo volume;
    AnalyzerModel model{services()};

    AnalyzerModelRuns() {
        volume.name = "Data";
        volume.available = 1000;
        model.select(std::filesystem::path("/"));
        LogStore::shared().clear();
    }
    AnalyzerServices services() {
        AnalyzerServices services = engine.services();
        services.loadVolume = [this](const auto&) { return std::optional(volume); };
        services.probeCapabilities = [](const auto&) {
            OndelCore::volumes::VolumeCapabilities known;
            known.filesystemType = "ext4";
            return std::optional(known);
        };
        services.now = [this] { return QDateTime::fromMSecsSinceEpoch(clock += 500, QTimeZone::utc()); };
        return services;
    }
    bool importRun(const RunRecord& run) {
        return model.importRun(TarnwickReport{run}.handoffFile().value());
    }
    QUuid complete() {
        engine.begin(model);
        engine.finish(model);
        return model.currentRun()->id;
    }
    void fail(auto error) {
        engine.last().fail(error);
        turnUntilEnded(model);
    }
};

TEST_F(AnalyzerModelRuns, RecordsAFinishedRun) {
    model.setCurrentRunCollapsed(true);
    QStringList order;
    QObject::connect(&model, &AnalyzerModel::resultChanged, &model, [&] { order << "result"; });
    QObject::connect(&model, &AnalyzerModel::currentRunChanged, &model, [&] { order << "run"; });
    QObject::connect(&model.history(), &HistoryStore::runsChanged, &model, [&] { order << "history"; });
    QObject::connect(&model, &AnalyzerModel::phaseChanged, &model, [&] { order << "phase"; });
    clock = 1714566896000 - 500;
    engine.begin(model);
    volume.available = 1; // the record holds what was known when the run began
    BenchmarkResult result;
    result.sequentialWrite = ThroughputResult{1000, 1, 4096, {{1, 1234567890}}};
    result.sequentialWrite->flushError = std::make_error_code(std::errc::io_error);
    result.randomWrite = IOPSResult{1, 1, 4096, std::make_error_code(std::errc::io_error)};
    engine.finish(model, result);

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
                           "notice  app  benchmark finished took=1000.0ms writeMBps=1234 readMBps=0",
                           "error  app  benchmark flush failed after=sequentialWrite "
                           "error=\"system_error posix=5 (Input/output error)\"",
                           "error  app  benchmark flush failed after=randomWrite "
                           "error=\"system_error posix=5 (Input/output error)\"",
                           "notice  app  benchmark remarks codes=flushFailed"}));
    complete();
    ASSERT_EQ(model.previousRuns().size(), 1u);
    EXPECT_EQ(model.previousRuns().front().freeBytes, 1000);
    EXPECT_EQ(HistoryStore(engine.history.path()).runs().size(), 2u);
}

TEST_F(AnalyzerModelRuns, RecordsOnlyFinishedRuns) {
    engine.begin(model);
    model.cancel();
    fail(Cancelled());
    engine.begin(model);
    fail(BenchmarkError(BenchmarkError::NotWritable{}));
    EXPECT_FALSE(model.currentRun());
    EXPECT_TRUE(model.history().runs().empty());
    const QStringList lines = logged();
    EXPECT_EQ(lines.size(), 4);
    EXPECT_EQ(lines.value(1), "notice  app  benchmark cancelled");
    EXPECT_TRUE(lines.value(3).startsWith("error  app  benchmark failed error=\"")) << qPrintable(lines[3]);
    model.clearHistory();
    EXPECT_EQ(model.phase(), Phase::Failed);
}

TEST_F(AnalyzerModelRuns, ImportsARunFile) {
    const RunRecord run = fullRun(2);
    model.setCurrentRunCollapsed(true);
    EXPECT_TRUE(importRun(run));
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.currentRun(), run);
    EXPECT_FALSE(model.currentRunCollapsed());

    // A second import shows the file's copy. The stored one keeps its new title.
    model.renameRun(run.id, "Renamed");
    EXPECT_TRUE(importRun(run));
    EXPECT_EQ(model.currentRun(), run);
    ASSERT_EQ(model.history().runs().size(), 1u);
    EXPECT_EQ(model.history().runs().front().customTitle, "Renamed");

    LogStore::shared().clear();
    const auto broken = engine.history.path() / "broken.tarnwickrun";
    std::ofstream(broken) << "{}";
    for (const auto& path : {broken, engine.history.path() / "missing", std::filesystem::path("/dev/zero")})
        EXPECT_FALSE(model.importRun(path)) << path;
    EXPECT_EQ(model.history().runs().size(), 1u);
    EXPECT_EQ(logged().first(), "error  app  run from another app couldn't be read");

    model.select(std::filesystem::path("/"));
    EXPECT_EQ(model.phase(), Phase::Done) << "the last run is still shown";
    engine.begin(model);
    LogStore::shared().clear();
    EXPECT_TRUE(importRun(fullRun(2)));
    EXPECT_EQ(logged(), QStringList("notice  app  run imported shown=false"));
    EXPECT_TRUE(model.isRunning());
    EXPECT_FALSE(model.currentRun());
    EXPECT_EQ(model.history().runs().size(), 2u);
    fail(BenchmarkError(BenchmarkError::NotWritable{}));
    EXPECT_TRUE(importRun(run));
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.failureMessage(), "");
}

TEST_F(AnalyzerModelRuns, ShowsAStoredRun) {
    const QUuid first = complete();
    const QUuid second = complete();
    HistoryStore other(engine.history.path());
    const RunRecord others = fullRun(2);
    other.add(others);
    model.setShowsCheck(true);
    for (const QUuid& id : {first, others.id, first, second}) {
        model.setCurrentRunCollapsed(true);
        model.showRun(id);
        ASSERT_TRUE(model.currentRun());
        EXPECT_EQ(model.currentRun()->id, id);
        EXPECT_FALSE(model.currentRunCollapsed());
        EXPECT_FALSE(model.showsCheck());
        EXPECT_EQ(model.sidebarValues().join(QString()), QString()) << "figures of another run beside it";
        EXPECT_EQ(model.phase(), Phase::Done);
    }
    model.setShowsCheck(true);
    model.showRun(QUuid::createUuid());
    model.showRun({});
    EXPECT_EQ(model.currentRun()->id, second);
    EXPECT_TRUE(model.showsCheck());
    EXPECT_EQ(HistoryStore(engine.history.path()).runs().size(), 3u);
    engine.begin(model);
    model.showRun(first);
    EXPECT_TRUE(model.isRunning());
    EXPECT_FALSE(model.currentRun());
    engine.finish(model);
}

TEST_F(AnalyzerModelRuns, ImportsManyFilesWithOneSave) {
    std::vector<RunRecord> runs;
    std::vector<std::filesystem::path> files;
    for (int count = 0; count < 120; ++count) {
        runs.push_back(fullRun(2));
        files.push_back(TarnwickReport{runs.back()}.handoffFile().value());
    }
    files.insert(files.end() - 1, engine.history.path() / "missing");
    int changes = 0, shown = 0;
    QObject::connect(&model.history(), &HistoryStore::runsChanged, &model, [&] { ++changes; });
    QObject::connect(&model, &AnalyzerModel::currentRunChanged, &model, [&] { ++shown; });
    model.importRuns({});
    model.importRuns({files.begin(), files.begin() + 60});
    model.importRuns({files.begin() + 60, files.begin() + 90}); // during the first import
    model.importRuns({files.begin() + 90, files.end()});
    EXPECT_TRUE(model.history().runs().empty()) << "files must be read on another thread";

    turnUntil([&] { return model.currentRun() && model.currentRun()->id == runs.back().id; });
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(model.history().runs().size(), 50u);
    EXPECT_TRUE(std::equal(runs.rbegin(), runs.rbegin() + 50, model.history().runs().begin()));
    EXPECT_EQ(HistoryStore(engine.history.path()).runs(), model.history().runs());
    EXPECT_EQ(logged().count("notice  app  run imported shown=true"), 120);
    EXPECT_EQ(logged().count("error  app  run from another app couldn't be read"), 1);
    EXPECT_EQ(model.refusal(), "“missing” is damaged or not a Tarnwick run.");
    model.refuse({"two\nlines\xff", "x"});
    EXPECT_EQ(model.refusal(),
              "“two\uFFFDlines\uFFFD” and 1 more are not folders or run files that can be opened.");
}

TEST_F(AnalyzerModelRuns, DropsRunsThatAnotherWindowDeleted) {
    const QUuid ids[] = {complete(), complete(), complete()};
    model.setRunExpanded(ids[0], true);
    model.toggleCompareMode();
    for (const QUuid& id : ids)
        model.toggleCompareSelection(id);
    HistoryStore other(engine.history.path());
    other.deleteRun(ids[0]);
    other.deleteRun(ids[2]);
    other.setTitle("From elsewhere", ids[1]);
    model.history().refresh();
    EXPECT_TRUE(model.expandedRunIDs().empty());
    EXPECT_EQ(model.compareSelection(), (std::set<QUuid>{ids[1], ids[2]})) << "the last run is still shown";
    EXPECT_EQ(model.previousRuns().front().customTitle, "From elsewhere");
    other.setTitle("On view", ids[1]);
    other.add(*model.currentRun());
    other.setTitle("Renamed on view", ids[2]);
    model.history().refresh();
    EXPECT_EQ(model.currentRun()->customTitle, std::nullopt)
        << "a run that was not listed has no title to follow";
    other.setTitle("And again", ids[2]);
    model.history().refresh();
    EXPECT_EQ(model.currentRun()->customTitle, "And again");
}

TEST_F(AnalyzerModelRuns, ComparesInTheOrderShown) {
    const RunRecord runs[] = {fullRun(2), fullRun(2), fullRun(2)};
    std::vector<std::filesystem::path> files;
    for (const RunRecord& run : runs)
        files.push_back(TarnwickReport{run}.handoffFile().value());
    model.importRuns(files);
    turnUntil([&] { return model.currentRun().has_value(); });
    EXPECT_EQ(HistoryStore(engine.history.path()).runs(), model.history().runs());
    EXPECT_TRUE(model.canCompare());
    // One run is no comparison, nor is one together with an unknown id.
    model.toggleCompareMode();
    for (const QUuid& id : {runs[0].id, QUuid::createUuid()}) {
        model.toggleCompareSelection(id);
        model.beginComparison();
        EXPECT_FALSE(model.comparison());
        EXPECT_TRUE(model.compareMode());
    }
    // The last imported run is shown; the others follow, newest first.
    model.toggleCompareSelection(runs[2].id);
    model.beginComparison();
    EXPECT_EQ(model.comparison(), (std::vector<RunRecord>{runs[2], runs[0]}));
    EXPECT_FALSE(model.compareMode());
    EXPECT_TRUE(model.compareSelection().empty());

    model.renameRun(runs[0].id, "  New name ");
    EXPECT_EQ(model.comparison()->back().customTitle, "New name");
    EXPECT_EQ(model.currentRun()->customTitle, fullRun(2).customTitle);
    model.deleteRun(runs[1].id);
    EXPECT_TRUE(model.canCompare()) << "one run and that on view";
    EXPECT_TRUE(model.isComparing()) << "the deleted run was not part of the comparison";
    model.deleteRun(runs[0].id);
    EXPECT_FALSE(model.isComparing());
    EXPECT_FALSE(model.canCompare()) << "that on view alone";

    model.toggleCompareMode();
    model.toggleCompareSelection(runs[2].id);
    model.toggleCompareSelection(runs[2].id);
    EXPECT_EQ(model.compareSelectionCount(), 0);
    model.toggleCompareSelection(runs[2].id);
    model.toggleCompareMode();
    EXPECT_EQ(model.compareSelectionCount(), 0);
}

TEST_F(AnalyzerModelRuns, ComparesARunWithTheLastOfItsVolume) {
    RunRecord runs[] = {fullRun(2), fullRun(2), fullRun(2), fullRun(2)};
    runs[2].volumeName = "Another";
    int began = 0;
    QObject::connect(&model, &AnalyzerModel::comparisonBegan, &model, [&] { ++began; });
    importRun(runs[0]);
    EXPECT_FALSE(model.canCompare()) << "a run is not compared with itself";
    EXPECT_FALSE(model.hasLastOfVolume(runs[0].id));
    for (const RunRecord& run : {runs[1], runs[2], runs[3]})
        importRun(run);
    EXPECT_TRUE(model.canCompare());
    EXPECT_FALSE(model.hasLastOfVolume(runs[2].id));
    EXPECT_FALSE(model.hasLastOfVolume(QUuid::createUuid()));
    model.compareWithLast(runs[2].id);
    EXPECT_FALSE(model.isComparing());

    model.compareWithLast(runs[3].id);
    EXPECT_EQ(model.comparison(), (std::vector{runs[3], runs[1]}));
    EXPECT_EQ(model.comparisonReference(), 1) << "the older one";
    model.compareWithLast(runs[1].id);
    EXPECT_EQ(model.comparison(), (std::vector{runs[1], runs[0]}));
    EXPECT_EQ(began, 2);
    for (const int beyond : {2, -1})
        model.setComparisonReference(beyond);
    EXPECT_EQ(model.comparisonReference(), 1);
    model.setComparisonReference(0);
    model.renameRun(runs[0].id, "Title");
    EXPECT_EQ(model.comparisonReference(), 0) << "a new title does not begin another comparison";
    EXPECT_EQ(began, 2);
}

TEST_F(AnalyzerModelRuns, DeletingARunDropsItEverywhere) {
    const QUuid older = complete();
    const QUuid newer = complete();
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

    model.toggleCompareSelection(complete());
    model.clearHistory();
    EXPECT_EQ(model.phase(), Phase::Idle);
    EXPECT_FALSE(model.currentRun());
    EXPECT_FALSE(model.compareMode());
    EXPECT_TRUE(model.compareSelection().empty());
    EXPECT_EQ(readRunFile(model.history().url().value()), "[]");
}

TEST_F(AnalyzerModelRuns, BringsDeletedRunsBackToTheirPlaces) {
    std::vector<RunRecord> runs;
    for (int count = 0; count < 60; ++count) // more than are kept when one is added
        runs.push_back(fullRun(1));
    std::ofstream(model.history().url().value()) << [&] {
        std::string all;
        for (const RunRecord& run : runs)
            all += (all.empty() ? "[" : ",") + encodeRun(run)->toStdString();
        return all + "]";
    }();
    model.history().refresh();
    const auto stored = [&] { return HistoryStore(engine.history.path()).runs(); };
    ASSERT_EQ(stored().size(), 60u);
    model.setRunExpanded(runs[1].id, true);
    for (const std::size_t index : {1U, 0U, 2U, 59U})
        model.deleteRun(runs[index].id);
    model.deleteRun(runs[2].id); // once more
    EXPECT_EQ(model.undoableRuns(), 4);
    model.undoDeletion();
    EXPECT_EQ(model.undoableRuns(), 0);
    EXPECT_EQ(model.history().runs(), runs);
    EXPECT_EQ(stored(), runs);
    EXPECT_TRUE(model.expandedRunIDs().contains(runs[1].id));
    model.undoDeletion();
    EXPECT_EQ(stored(), runs);

    // A run that is shown is shown again, and what was added meanwhile stays at the top.
    const QUuid shown = complete();
    model.clearHistory();
    EXPECT_EQ(model.phase(), Phase::Idle);
    const RunRecord newer = fullRun(1);
    model.history().add(newer);
    model.undoDeletion();
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.currentRun()->id, shown);
    EXPECT_EQ(stored().at(0).id, newer.id);
    EXPECT_EQ(stored().at(1).id, shown);
    EXPECT_EQ(stored().size(), 51u);

    // During a run it comes back to the list alone.
    model.deleteRun(shown);
    engine.begin(model);
    model.undoDeletion();
    EXPECT_TRUE(model.isRunning());
    EXPECT_FALSE(model.currentRun());
    EXPECT_EQ(stored().at(1).id, shown);
    fail(Cancelled());

    RunLibrary library(engine.history.path());
    library.deleteRun(shown);
    EXPECT_EQ(library.undoableRuns(), 1u);
    auto* clock = library.findChild<QTimer*>();
    EXPECT_EQ(clock->intervalAsDuration(), std::chrono::seconds(8));
    QMetaObject::invokeMethod(clock, "timeout");
    EXPECT_EQ(library.undoableRuns(), 0u);
    library.undoDeletion();
    EXPECT_FALSE(library.contains(shown));
}

} // namespace

} // namespace TarnwickKit::model
