#include "TarnwickHost/HostProcess.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <QFile>
#include <QImage>
#include <QJsonDocument>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

using namespace TarnwickKit::model;
using test::runHost;
namespace fs = std::filesystem;

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
    EXPECT_NE(shown.errors.find(" is not a run file: more text stands behind the end\n"), std::string::npos);
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

/// What stands behind a line break, or all of the text.
std::string lastLine(std::string text) {
    if (text.ends_with('\n'))
        text.pop_back();
    return text.substr(text.rfind('\n') + 1);
}

/// Width of the picture whose path is the last line of `output`.
int widthOf(const std::string& output) { return QImage(QFile::decodeName(lastLine(output).c_str())).width(); }

TEST(Card, IsDrawnAfterTheRunAndFromItsFile) {
    const test::TemporaryFolder folder;
    const std::vector<std::string> run{"run", "--tests", "sequentialWrite", "--size", "1M"};
    const auto with = [&](std::vector<std::string> more) {
        more.insert(more.begin(), run.begin(), run.end());
        more.push_back(folder.path());
        return runHost(more);
    };
    const auto drawn = with({"--card", "dark"});
    ASSERT_EQ(drawn.exitStatus, 0) << drawn.errors;
    EXPECT_EQ(widthOf(drawn.output), 1616);
    const fs::path shared = fs::path(lastLine(drawn.output)).parent_path();
    EXPECT_EQ(std::distance(fs::directory_iterator(shared), {}), 1) << "the run's own file was only lent";

    const auto kept = with({"--handoff"});
    const std::string file = lastLine(kept.output);
    const auto card = runHost({"card", file});
    EXPECT_EQ(card.exitStatus, 0) << card.errors;
    EXPECT_EQ(card.errors, "");
    EXPECT_EQ(widthOf(card.output), 1616);
    const auto compared = runHost({"card", "--dark", file, file});
    EXPECT_EQ(fs::path(lastLine(compared.output)).filename(), "Ondel Tarnwick — Comparison.png");
    EXPECT_EQ(widthOf(compared.output), 1616);

    // One line for each thing that does not go, and no picture of the rest.
    const auto half = runHost({"card", file, folder.path() / "missing"});
    EXPECT_EQ(std::tuple(half.exitStatus, half.output), std::tuple(1, ""));
    EXPECT_EQ(std::ranges::count(half.errors, '\n'), 1) << half.errors;
    EXPECT_EQ(runHost({"card"}).exitStatus, 2);
    EXPECT_EQ(with({"--card", "pink"}).exitStatus, 2);

    const fs::path picture = lastLine(card.output);
    fs::remove(picture);
    fs::create_directories(picture / "in the way");
    const auto refused = runHost({"card", file});
    EXPECT_EQ(std::tuple(refused.exitStatus, refused.output), std::tuple(1, ""));
    EXPECT_EQ(refused.errors,
              "The picture could not be drawn, or not be written to your temporary folder.\n");
    fs::remove_all(shared);
}

TEST(Card, RunsNoProgramOfTheCurrentFolder) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer needs /proc itself";
#endif
    if (geteuid() != 0)
        GTEST_SKIP() << "hiding /proc needs root";
    const test::TemporaryFolder folder;
    const fs::path foreign = folder.path() / "tarnwick-host-card";
    std::ofstream(foreign) << "#!/bin/sh\necho foreign\n";
    fs::permissions(foreign, fs::perms::owner_all);
    test::HostProcess process({.arguments = {"card", "some.tarnwickrun"}, .prepare = [&] {
                                   const bool hidden =
                                       unshare(CLONE_NEWNS) == 0 &&
                                       mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                                       mount("none", "/proc", "tmpfs", 0, nullptr) == 0;
                                   if (!hidden || chdir(folder.path().c_str()) != 0)
                                       _exit(77);
                               }});
    const auto ended = process.wait();
    if (ended.exitStatus == 77)
        GTEST_SKIP() << "/proc cannot be hidden here";
    EXPECT_EQ(std::tuple(ended.exitStatus, ended.output), std::tuple(1, ""));
    EXPECT_EQ(
        ended.errors,
        "tarnwick-host-card, which comes with the window, could not be started: No such file or directory\n");
}

} // namespace
