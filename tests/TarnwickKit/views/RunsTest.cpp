// What the views show of runs: the facts of one, and the list of those that are stored.

#include "tests/TarnwickKit/views/Runs.h"

#include "TarnwickKit/views/runs/RunFacts.h"
#include "TarnwickKit/views/runs/StoredRuns.h"
#include "tests/TarnwickKit/model/ModelHarness.h"
#include "tests/TarnwickKit/views/Pictures.h"

#include <QAbstractItemModelTester>

using namespace TarnwickKit::views;
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

} // namespace
