// How the views show what a run's evidence says about its figures.

#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/sharing/CardView.h"
#include "tests/TarnwickKit/model/ModelHarness.h"
#include "tests/TarnwickKit/views/Pictures.h"
#include "tests/TarnwickKit/views/Runs.h"

using namespace TarnwickKit::views;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::benchmark::RemarkWeight;
using TarnwickKit::model::RunRecord;

namespace {

RunRecord runWith(std::vector<Remark> remarks) {
    RunRecord run = test::fullRun();
    run.remarks = std::move(remarks);
    return run;
}

Remark fromMemory(std::optional<BenchmarkTest> test, RemarkWeight weight = RemarkWeight::invalid) {
    return {RemarkCode::fromMemory, weight, test, {0.25}};
}

QStringList texts(const QQuickItem& item) {
    QStringList all;
    if (!item.isVisible())
        return all;
    if (item.inherits("QQuickText"))
        all << item.property("text").toString();
    for (const QQuickItem* child : item.childItems())
        all << texts(*child);
    return all;
}

TEST(RunFacts, MarkTheFiguresThatAreNotTheDisks) {
    const struct {
        std::vector<Remark> remarks;
        const char* marks; ///< write, read, random read, random write, file operations
        const char* line;
    } cases[] = {
        {{}, "-----", ""},
        {{fromMemory(BenchmarkTest::sequentialRead)}, "-M---", "Not the disk’s figure: Sequential read"},
        {{fromMemory(BenchmarkTest::sequentialWrite, RemarkWeight::caution)}, "-----", ""},
        {{fromMemory(BenchmarkTest::randomRead), fromMemory(BenchmarkTest::fileOps)},
         "--M-M",
         "Not the disk’s figures: Random read (16 KiB), File operations"},
        {{{RemarkCode::flushFailed, RemarkWeight::invalid, std::nullopt, {5}}},
         "MMM-M",
         "Not the disk’s figures: Sequential write, Sequential read, Random read (16 KiB), File operations"},
    };
    for (const auto& c : cases) {
        RunRecord run = runWith(c.remarks);
        run.randomWriteIOPS = std::nullopt; // what was not measured has no mark
        const RunFacts facts = RunFacts::of(run);
        QString marks = facts.isWriteMarked ? "M" : "-";
        marks += facts.isReadMarked ? u'M' : u'-';
        for (const QVariant& figure : facts.minor)
            marks += figure.value<InfoItem>().warning ? u'M' : u'-';
        EXPECT_EQ(marks, c.marks) << c.line;
        EXPECT_EQ(facts.markedLine, c.line);
        EXPECT_EQ((ComparedRuns{{test::bareRun(), run}}.hasMarks()), marks.contains(u'M'));
    }
}

TEST(RunFacts, TellTheLatencyOfWhatWasMeasured) {
    RunRecord run = test::fullRun();
    const auto notes = [&run] {
        QStringList all;
        for (const QVariant& figure : RunFacts::of(run).minor)
            all << figure.value<InfoItem>().note;
        return all;
    };
    run.evidence = TarnwickKit::model::RunEvidence{
        .randomReadLatency = OndelCore::benchmark::Latency{.p99 = 0.00031, .worst = 0.012},
        .createLatency = OndelCore::benchmark::Latency{}};
    EXPECT_EQ(notes(), (QStringList{"p99 0.31 ms · worst 12 ms", "", ""}));
    run.randomReadIOPS = std::nullopt;
    EXPECT_EQ(notes(), (QStringList{"", "", ""}));
}

TEST(RunFacts, NameTheDriveOnce) {
    const struct {
        std::optional<QString> model, protocol;
        const char *strip, *legend;
    } cases[] = {
        {"SSD 990", "NVMe", "SSD 990 · NVMe", "SSD 990 · NVMe"},
        {"Title", "USB", "Title · USB", "USB"},
        {"SSD 990", std::nullopt, "SSD 990", "SSD 990"},
        {std::nullopt, "NVMe", "", ""},
        {" ", "NVMe", "", ""},
    };
    for (const auto& c : cases) {
        RunRecord run = test::fullRun();
        run.customTitle = QStringLiteral("Title");
        run.deviceModel = c.model;
        run.deviceProtocol = c.protocol;
        const auto first = RunFacts::of(run).captured.at(0).value<InfoItem>();
        EXPECT_EQ(first.label == "Drive" ? first.value : QString(), c.strip);
        const QString legend = ComparedRuns{{run}}.entries().at(0).value<ComparedRun>().legend;
        EXPECT_TRUE(legend.endsWith(*c.legend ? QStringLiteral(" PM · ") + c.legend : QStringLiteral(" PM")))
            << legend.toStdString();
    }
}

TEST(Remarks, AreToldInTheRecordsOrder) {
    const RunRecord run =
        runWith({fromMemory(BenchmarkTest::randomRead),
                 {RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::fileOps, {7}},
                 {RemarkCode::powerSaving, RemarkWeight::caution, std::nullopt, {1}},
                 {RemarkCode::copiesOnWrite, RemarkWeight::note, std::nullopt, {1}}});
    const QList<RemarkItem> remarks = remarkItems(run);
    ASSERT_EQ(remarks.size(), 3) << "the one with an impossible number is left out";
    EXPECT_TRUE(remarks[0].sentence.startsWith("Random read (16 KiB): At most 25 % of"));
    EXPECT_EQ((QStringList{remarks[0].word, remarks[1].word, remarks[2].word}),
              (QStringList{"Invalid", "Caution", "Note"}));
    EXPECT_NE(remarks[0].symbol, remarks[1].symbol);
    EXPECT_NE(remarks[1].symbol, remarks[2].symbol);
    EXPECT_TRUE(remarkItems(test::fullRun()).isEmpty());
}

TEST(RunRemarks, FitIntoTheirCard) {
    test::Stage stage("RunRemarks { width: 300 }",
                      {{"run", QVariant::fromValue(runWith({64, fromMemory(BenchmarkTest::randomRead)}))}});
    stage.picture();
    const QStringList all = texts(stage.root());
    EXPECT_EQ(all.count(QStringLiteral("Invalid")), 64);
    EXPECT_TRUE(all.contains(QStringLiteral("About these figures")));
    EXPECT_GT(stage.root().height(), 64 * 50) << "sentence and advice are wrapped";
    EXPECT_LE(stage.root().childrenRect().right(), 300);
}

/// The heights of the marks in `item`, from its top.
QList<double> marksIn(const QQuickItem& item, const QQuickItem& within) {
    QList<double> heights;
    if (QByteArrayView(within.metaObject()->className()).startsWith("FigureMark_"))
        heights << within.mapToItem(&item, QPointF()).y();
    for (const QQuickItem* child : within.childItems())
        heights << marksIn(item, *child);
    return heights;
}

TEST(SidebarView, MarksTheFiguresOfTheLastRun) {
    TarnwickKit::model::Engine engine;
    TarnwickKit::model::AnalyzerModel model(engine.services());
    model.select(std::filesystem::path("/"));
    test::Stage stage(
        "SidebarView { width: 272; height: 700; target: TargetFacts {} keeper: FocusKeeper {} }",
        {{"analyzer", QVariant::fromValue(&model)}});
    const auto measured = [&](std::optional<std::error_code> flushError) {
        engine.begin(model);
        OndelCore::benchmark::BenchmarkResult result;
        result.sequentialRead.emplace().bytesProcessed = 1;
        result.randomWrite.emplace().flushError = flushError;
        engine.finish(model, result);
        stage.picture();
        return marksIn(stage.root(), stage.root());
    };
    EXPECT_EQ(measured(std::nullopt).size(), 0);
    const QList<double> marks = measured(std::make_error_code(std::errc::io_error));
    ASSERT_EQ(marks.size(), 1);
    EXPECT_NEAR(marks[0], 18 + 29 + 3 * 39 + 12, 8) << "the fourth row";
    EXPECT_EQ(measured(std::nullopt).size(), 0);
}

TEST(ReportCard, SaysInALineWhatItsMarksMean) {
    const auto card = [](const char* name, const char* property, const QVariant& value) {
        return texts(*newCard(QString::fromLatin1(name),
                              {{QString::fromLatin1(property), value}, {QStringLiteral("link"), QString()}},
                              Palette::light()))
            .filter(QStringLiteral("the disk’s"));
    };
    const RunRecord plain = test::fullRun();
    const RunRecord marked = runWith({fromMemory(BenchmarkTest::sequentialRead)});
    EXPECT_EQ(card("ReportCard", "run", QVariant::fromValue(plain)), QStringList());
    EXPECT_EQ(card("ReportCard", "run", QVariant::fromValue(marked)),
              QStringList("Not the disk’s figure: Sequential read"));
    EXPECT_EQ(card("ComparisonCard", "runs", QVariant::fromValue(ComparedRuns{{plain, plain}})),
              QStringList());
    EXPECT_EQ(card("ComparisonCard", "runs", QVariant::fromValue(ComparedRuns{{plain, marked}})),
              QStringList("Not the disk’s figure"));
}

} // namespace
