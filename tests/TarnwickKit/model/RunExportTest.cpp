#include "TarnwickKit/model/runs/RunExport.h"

#include "SampleRun.h"
#include "TarnwickKit/model/runs/FiguresText.h"
#include "TarnwickKit/model/runs/RunCodec.h"

#include <gtest/gtest.h>

namespace TarnwickKit::model {

namespace {

TEST(FiguresText, HasALineForEachFigure) {
    RunRecord run = fullRun(2);
    run.customTitle = "=A1\tB\n C";
    run.readPeakBps = std::nullopt;
    QStringList lines = figuresText(run).split('\n');
    EXPECT_TRUE(lines.takeFirst().startsWith("Run: =A1 B C · May 1, 2024 · "));
    EXPECT_EQ(lines, QStringList({"Sequential write\t512.3\tMB/s", "Sequential write, peak\t712.3\tMB/s",
                                  "Sequential write, lowest\t112.3\tMB/s",
                                  "Sequential read\t2512.3\tMB/s\tnot the disk’s figure",
                                  "Sequential read, lowest\t1512.3\tMB/s\tnot the disk’s figure",
                                  "Random read (4 KiB)\t12508\tIOPS", "Random write (4 KiB)\t10067\tIOPS",
                                  "File operations\t20346\tops/s", ""}));
}

/// A run whose texts try to become something else.
RunRecord foreignRun(const QString& title) {
    RunRecord run = fullRun(2);
    run.customTitle = title;
    return run;
}

TEST(RunExport, CsvCellsAreTextsAndNumbers) {
    struct Case {
        QString title, cell;
    };
    for (const Case& each : {
             Case{"plain", "plain"},
             Case{"a,b", "\"a,b\""},
             Case{"the \"best\"", "\"the \"\"best\"\"\""},
             Case{"=1+1", "'=1+1"},
             Case{"+1", "'+1"},
             Case{"-1", "'-1"},
             Case{"@sum", "'@sum"},
             Case{" =1", "' =1"},
             Case{" 1", "\" 1\""},
             Case{"＝1", "'＝1"},
             Case{"=\"x\",1", "\"'=\"\"x\"\",1\""},
             Case{"\t=1\r\n=2", "�=1��=2"},
             Case{"\u202Efdp", "�fdp"},
         }) {
        const QString csv = QString::fromUtf8(csvTable({foreignRun(each.title)}));
        EXPECT_TRUE(csv.contains(",external," + each.cell + ",6.1.0-18-amd64,0.1.0,"))
            << csv.section("external", 1).left(80).toStdString();
        EXPECT_EQ(csv.count("\r\n"), 2);
        EXPECT_EQ(csv.count('\n'), 2);
    }
    const QList<QByteArray> lines = csvTable({fullRun(2)}).split('\n');
    EXPECT_TRUE(lines[0].startsWith("id,volumeName,connection,date,duration,writeBps,"));
    EXPECT_TRUE(lines[1].contains(",Vlüme 💾,External,2024-05-01T12:34:56Z,63.25,512345678.125,"));
    EXPECT_TRUE(lines[1].contains(",invalid:fromMemory:sequentialRead note:virtualDisk,8.1234567e-05,"));
    EXPECT_EQ(lines[0].count(','), lines[1].count(','));
    EXPECT_EQ(csvTable({}).count('\n'), 1);
}

TEST(RunExport, MarkdownStaysATable) {
    const QString title = "a|b `c` <img src=x>\n[x](http://y) *b* _i_ wWw.z &amp; @me \\ #1 \u202E";
    const QString cell =
        "| a\\|b \\`c\\` &lt;img src=x&gt;�\\[x\\](http\\://y) \\*b\\* \\_i\\_ wWw\\.z &amp;amp; "
        "@\u200Cme \\\\ \\#1 � |";
    const RunRecord run = foreignRun(title);
    const QStringList beside = markdownTable({run, run}).split('\n');
    EXPECT_EQ(beside[0], "| Run " + cell + cell.mid(1)) << beside[0].toStdString();
    EXPECT_EQ(beside[1], "| --- | --- | --- |");
    EXPECT_TRUE(beside.contains("| Sequential write | 512 MB/s | 512 MB/s |"))
        << beside.join('\n').toStdString();
    EXPECT_TRUE(beside.contains("| Sequential read | 2,512 MB/s (invalid) | 2,512 MB/s (invalid) |"));
    EXPECT_TRUE(beside.contains("| System " +
                                QString("| Linux 6.1.0-18-amd64 · Ondel Tarnwick 0.1.0 ").repeated(2) + "|"));
    const QStringList below = markdownTable(std::vector(5, run)).split('\n');
    EXPECT_EQ(below.size(), 1 + 1 + 5 + 1) << "five runs and the end";
    EXPECT_TRUE(below[2].startsWith(cell));
    EXPECT_EQ(markdownTable({}), "");
}

TEST(RunExport, KnowsItsOwnFiles) {
    const RunRecord run = foreignRun("\u009b2J\u202E💾");
    const QByteArray list = jsonList({run, run});
    EXPECT_FALSE(list.contains("\u009b")) << "terminals obey it";
    EXPECT_TRUE(list.contains(R"("customTitle":"\u009b2J\u202e💾")"));
    EXPECT_EQ(requireRuns(list), (std::vector{run, run}));
    EXPECT_EQ(jsonList({}), "[]\n");
    for (const ExportForm form : {ExportForm::csv, ExportForm::json})
        EXPECT_TRUE(isExport(exported({run}, form)));
    EXPECT_TRUE(isExport(encodeRun(run).value()));
    for (const QByteArray& other : {exported({run}, ExportForm::text), exported({run}, ExportForm::markdown),
                                    QByteArray("{}"), QByteArray("id,name\r\n"), QByteArray()})
        EXPECT_FALSE(isExport(other)) << other.toStdString();
}

} // namespace

} // namespace TarnwickKit::model
