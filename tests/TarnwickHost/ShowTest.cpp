#include "TarnwickHost/HostProcess.h"
#include "TarnwickHost/RunFiles.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

using namespace TarnwickKit::model;
using namespace TarnwickHost;
using test::runHost;
namespace {

TEST(Show, MatchesTheRunsFiguresAndNamesUnreadableFiles) {
    const test::TemporaryFolder folder;
    const auto run =
        runHost({"run", "--json", "--handoff", "--tests", "sequentialWrite", "--size", "1M", folder.path()});
    ASSERT_EQ(run.exitStatus, 0) << run.errors;
    const auto figures = QJsonDocument::fromJson(QByteArray::fromStdString(run.output));
    const std::string file = figures["handoffFile"].toString().toStdString();
    const std::string damaged = folder.path() / "damaged\x1b[2J";
    std::ofstream(damaged) << std::ifstream(file).rdbuf() << "]";
    const auto shown = runHost({"show", damaged, file, folder.path(), file + "x", file});
    std::filesystem::remove(file);
    EXPECT_EQ(shown.exitStatus, 1);
    EXPECT_EQ(std::ranges::count(shown.errors, '\n'), 3) << shown.errors;
    EXPECT_EQ(shown.errors.find('\x1b'), std::string::npos);
    const QJsonValue write = figures["sequentialWrite"];
    const QString line = "\nWrite         " + Format::rate(write["sustainedBytesPerSecond"].toDouble()) +
                         " · peak " + Format::rate(write["peakBytesPerSecond"].toDouble());
    EXPECT_EQ(QString::fromStdString(shown.output).count(line), 2) << shown.output;
}

TEST(Show, MarksFiguresThatAreNotTheDisks) {
    using namespace OndelCore::benchmark;
    RunRecord run;
    run.readBps = run.randomReadIOPS = run.randomReadBps = 1e9;
    run.randomBlock = 4096;
    const QString plain = runTexts({run, run}, {.columns = 79});
    run.evidence.emplace().randomReadLatency = Latency{0.0001, 0.00031, 0.001, 0.012};
    run.remarks = {{RemarkCode::fromMemory, RemarkWeight::invalid, BenchmarkTest::sequentialRead, {0}}};
    const QString text = runTexts({run}, {.columns = 79});
    EXPECT_TRUE(text.contains("\nRead          1.00 GB/s · peak -- · lowest -- · ! Invalid\n"));
    EXPECT_TRUE(text.contains(" IOPS · 1.00 GB/s · p99 0.31 ms · worst 12 ms\n")) << text.toStdString();
    EXPECT_TRUE(text.contains("\n\nAbout these figures\n! Invalid     Sequential read: "));
    EXPECT_EQ(runTexts({run, run}, {.columns = 79}).count("  ! Invalid · Volume\n"), 2);
    EXPECT_FALSE(plain.contains("Invalid") || plain.contains("About"));
    run.remarks->front().test.reset();
    EXPECT_EQ(runTexts({run}, {.columns = 200}).count("· ! Invalid\n"), 2) << "all figures of the run";
}

TEST(Show, KeepsAnyTitleOnItsLineAndWithinTheTerminal) {
    std::vector<RunRecord> runs(3);
    runs[0].writeBps = 1;
    runs[1].writeBps = 1e9;
    runs[1].customTitle = "x" + QString(100000, QChar(0x301));
    for (const char16_t* title :
         {u"\x1b]0;own\a\x1b[2J\r\n\x9b", u"\u202Egnp.exe\u2028", u"測定測定測定測定測定",
          u"🧑‍🚀🧑‍🚀🧑‍🚀🧑‍🚀🧑‍🚀🧑‍🚀🧑‍🚀🧑‍🚀",
          u"\xd83e half", u""}) {
        runs[0].customTitle = QString::fromUtf16(title);
        for (const int columns : {24, 40, 79}) {
            const QString text = runTexts(runs, {.columns = columns});
            EXPECT_TRUE(text.contains(u"\n1 █ ")) << "a value above 0 is seen";
            EXPECT_TRUE(text.contains(" --  ")) << text.toStdString();
            for (const QString& line : text.split('\n')) {
                EXPECT_LE(columnsOf(line), columns) << line.toStdString();
                EXPECT_EQ(harmless(line), line) << line.toStdString();
            }
        }
    }
}

} // namespace
