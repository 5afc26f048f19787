// What the views show of runs: the facts of one, and the list of those that are stored.

#include "tests/TarnwickKit/views/Runs.h"

#include "TarnwickKit/views/runs/ComparedRuns.h"
#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/runs/StoredRuns.h"
#include "TarnwickKit/views/sharing/CardView.h"
#include "tests/TarnwickKit/model/ModelHarness.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QAbstractItemModelTester>

using namespace TarnwickKit::views;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkCode;
using OndelCore::benchmark::RemarkWeight;
using TarnwickKit::model::AnalyzerModel;
using TarnwickKit::model::RunRecord;

namespace {

TEST(RunFacts, RecogniseANetworkVolumeAlsoByItsFileSystem) {
    using Kind = RunRecord::Kind;
    const struct {
        Kind recorded;
        const char* fileSystem;
        Kind kind;
        const char *symbol, *connection;
    } cases[] = {
        {Kind::internalDrive, "ext4", Kind::internalDrive, "internaldrive", "External"},
        {Kind::external, "ext4", Kind::external, "externaldrive", "External"},
        {Kind::external, "NFS", Kind::network, "externaldrive.connected.to.line.below", "Network"},
        {Kind::network, "ext4", Kind::network, "externaldrive.connected.to.line.below", "Network"},
    };
    for (const auto& c : cases) {
        RunRecord run = test::fullRun();
        run.kind = c.recorded;
        run.fsType = c.fileSystem;
        const RunFacts facts = RunFacts::of(run);
        EXPECT_EQ(facts.kind, static_cast<int>(c.kind));
        EXPECT_EQ(facts.badgeSymbol, c.symbol);
        EXPECT_EQ(facts.connection, c.connection);
        EXPECT_EQ(facts.isNetwork, c.kind == Kind::network);
    }
}

/// A model with a history: one run per letter, which determines its id. A capital letter has another title.
struct History {
    TarnwickKit::model::Engine engine;
    AnalyzerModel model{engine.services()};

    explicit History(const QString& letters) {
        std::vector<RunRecord> runs;
        for (const QChar letter : letters) {
            RunRecord run = test::fullRun();
            run.id = QUuid(letter.toLower().unicode(), 0, 0, 0, 0, 0, 0, 0, 0, 0, 1);
            run.volumeName = letter;
            runs.insert(runs.begin(), run);
        }
        model.history().add(runs);
    }
};

/// What the model announces, in order: "-1..2" for removed rows, "+0..0" for inserted ones, "2>0" for a moved
/// one, "*1..1 run" for rows whose role has changed.
class Told {
public:
    explicit Told(QAbstractItemModel& model) {
        const auto range = [](int first, int last) { return QStringLiteral("%1..%2").arg(first).arg(last); };
        const auto rows = [this, range](QChar sign) {
            return [this, sign, range](const QModelIndex&, int first, int last) {
                m_words << sign + range(first, last);
            };
        };
        QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &m_context, rows(u'-'));
        QObject::connect(&model, &QAbstractItemModel::rowsInserted, &m_context, rows(u'+'));
        QObject::connect(&model, &QAbstractItemModel::rowsMoved, &m_context,
                         [this](const QModelIndex&, int from, int, const QModelIndex&, int to) {
                             m_words << QStringLiteral("%1>%2").arg(from).arg(to);
                         });
        QObject::connect(&model, &QAbstractItemModel::dataChanged, &m_context,
                         [this, range, &model](const QModelIndex& first, const QModelIndex& last,
                                               const QList<int>& roles) {
                             m_words << u'*' + range(first.row(), last.row());
                             for (const int role : roles)
                                 m_words << QString::fromLatin1(model.roleNames().value(role));
                         });
        QObject::connect(&model, &QAbstractItemModel::modelReset, &m_context,
                         [this] { m_words << QStringLiteral("reset"); });
    }
    QString words() const { return m_words.join(u' '); }

private:
    QObject m_context;
    QStringList m_words;
};

TEST(StoredRuns, TellViewsRowByRowWhatChanges) {
    const struct {
        const char *before, *after, *told;
    } cases[] = {
        {"", "abc", "+0..2"},
        {"abc", "", "-0..2"},
        {"abc", "abc", ""},
        {"abc", "xabc", "+0..0"},
        {"abc", "ac", "-1..1"},
        {"abcd", "aBcD", "*1..1 run *3..3 run"},
        {"abcdefgh", "acg", "-7..7 -3..5 -1..1"}, // from the end, so that earlier row numbers stay valid
        {"abcdef", "uvwxyz", "-0..5 +0..5"},
        {"abcd", "xaybzcd", "+0..0 +2..2 +4..4"},
        {"abcd", "dabc", "3>0"},
        {"abcd", "Dabc", "3>0 *0..0 run"},
        {"abcd", "dcba", "3>0 3>1 3>2"},
        {"abcdef", "xfbYZa", "-2..4 +0..0 3>1 3>2 +3..4"},
    };
    for (const auto& [before, after, told] : cases) {
        History first(before), second(after);
        StoredRuns runs;
        const QAbstractItemModelTester tester(&runs, QAbstractItemModelTester::FailureReportingMode::Fatal);
        runs.setAnalyzer(&first.model);
        const Told heard(runs);
        runs.setAnalyzer(&second.model);
        EXPECT_EQ(heard.words().toStdString(), told) << before << " to " << after;
        QString shown;
        for (int row = 0; row < runs.count(); ++row)
            shown += runs.data(runs.index(row), StoredRuns::RunRole).value<RunRecord>().volumeName;
        EXPECT_EQ(shown.toStdString(), after) << before;
    }
}

TEST(StoredRuns, AnnounceWhichRoleHasChanged) {
    History history("abc");
    StoredRuns runs;
    const QAbstractItemModelTester tester(&runs, QAbstractItemModelTester::FailureReportingMode::Fatal);
    runs.setAnalyzer(&history.model);
    const Told heard(runs);
    const auto id = [&](int row) {
        return runs.data(runs.index(row), StoredRuns::RunRole).value<RunRecord>().id;
    };
    history.model.setRunExpanded(id(1), true);
    history.model.renameRun(id(2), QStringLiteral("Title"));
    EXPECT_EQ(heard.words().toStdString(), "*0..2 expanded *2..2 run");
    for (int row = 0; row < 3; ++row)
        EXPECT_EQ(runs.data(runs.index(row), StoredRuns::ExpandedRole).toBool(), row == 1);
    EXPECT_EQ(runs.data(runs.index(2), StoredRuns::RunRole).value<RunRecord>().customTitle, "Title");
}

/// The number of rows for runs in `item`.
int rowsIn(const QQuickItem& item) {
    int rows = QByteArrayView(item.metaObject()->className()).startsWith("HistoryRow_") ? 1 : 0;
    for (const QQuickItem* child : item.childItems())
        rows += rowsIn(*child);
    return rows;
}

/// Draws frames until no more rows are added. Answers the number of rows after each frame.
std::vector<int> frames(test::Stage& stage) {
    std::vector<int> rows;
    while (rows.size() < 2 || rows.back() != rows[rows.size() - 2]) {
        stage.picture();
        rows.push_back(rowsIn(stage.root()));
        Q_EMIT stage.root().window()->frameSwapped();
    }
    return rows;
}

QString letters(char16_t first) {
    QString all;
    for (char16_t letter = 0; letter < 50; ++letter)
        all += QChar(static_cast<char16_t>(first + letter));
    return all;
}

TEST(PreviousRuns, MakeAFewRowsAFrame) {
    History first(letters(0x4e00)), second(letters(0x5e00)); // letters without case
    StoredRuns runs;
    runs.setAnalyzer(&first.model);
    test::Stage stage(
        "PreviousRunsSection { width: 900; viewTop: 0; viewHeight: 600 }",
        {{"analyzer", QVariant::fromValue(&first.model)}, {"runs", QVariant::fromValue(&runs)}});
    EXPECT_EQ(frames(stage), (std::vector{8, 12, 16, 20, 20})) << "those in view at once";

    runs.setAnalyzer(&second.model);
    EXPECT_EQ(rowsIn(stage.root()), 0);
    EXPECT_EQ(frames(stage), (std::vector{4, 8, 12, 16, 20, 20}));

    stage.root().setProperty("viewTop", 3000);
    EXPECT_EQ(frames(stage), (std::vector{24, 28, 32, 36, 40, 44, 48, 50, 50}));
}

RunRecord runWith(std::vector<Remark> remarks) {
    RunRecord run = test::fullRun();
    run.remarks = std::move(remarks);
    return run;
}

Remark fromMemory(std::optional<BenchmarkTest> test, RemarkWeight weight = RemarkWeight::invalid) {
    return {RemarkCode::fromMemory, weight, test, {0.25}};
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
    const QStringList all = test::texts(stage.root());
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
        return test::texts(
                   *newCard(QString::fromLatin1(name),
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
