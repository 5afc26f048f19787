#include "OndelCore/platform/storage/FileTrials.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "TarnwickHost/HostProcess.h"
#include "support/LoopMount.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <sys/file.h>

#include <csignal>
#include <fstream>

namespace fs = std::filesystem;

using test::HostProcess;
using test::Output;
using test::runHost;

namespace {

/// Runs of a few megabytes, in a folder whose name is not valid UTF-8.
class Run : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directory(folder);
        if (fs::space(folder).available < (std::uintmax_t{1} << 30) + (std::uintmax_t{64} << 20))
            GTEST_SKIP() << "a run needs 1 GiB of free space in " << fs::temp_directory_path();
    }
    bool folderIsEmpty() const { return fs::is_empty(folder); }

    /// A run that lasts until it is stopped.
    std::vector<std::string> endlessRun() const {
        return {"run", "--tests", "randomRead", "--size", "1M", "--random-ops", "1000000000", folder};
    }

    const test::TemporaryFolder parent;
    const fs::path folder = parent.path() / "a b\xff\n";
};

/// The figures that follow from the samples are tested with the results.
void expectSequential(const QJsonObject& part, qint64 bytes, qint64 block) {
    EXPECT_EQ(part["bytesProcessed"].toInteger(), bytes);
    EXPECT_EQ(part["blockSize"].toInteger(), block);
    const double duration = part["duration"].toDouble();
    EXPECT_DOUBLE_EQ(part["bytesPerSecond"].toDouble(), static_cast<double>(bytes) / duration);
    const QJsonArray samples = part["samples"].toArray();
    ASSERT_EQ(samples.size(), (bytes + block - 1) / block) << "an interval of 0 samples every call";
    double covered = 0, last = 0;
    for (const QJsonValue sample : samples) {
        const double elapsed = sample["elapsed"].toDouble();
        EXPECT_GT(elapsed, last);
        covered += sample["bytesPerSecond"].toDouble() * (elapsed - last);
        last = elapsed;
    }
    EXPECT_NEAR(covered, static_cast<double>(bytes), 1);
    EXPECT_LE(last, duration);
}

void expectRandom(const QJsonObject& part, qint64 operations, qint64 block) {
    EXPECT_EQ(part["operations"].toInteger(), operations);
    EXPECT_EQ(part["blockSize"].toInteger(), block);
    const double iops = static_cast<double>(operations) / part["duration"].toDouble();
    EXPECT_DOUBLE_EQ(part["iops"].toDouble(), iops);
    EXPECT_DOUBLE_EQ(part["bytesPerSecond"].toDouble(), iops * static_cast<double>(block));
}

TEST_F(Run, JsonHoldsThePlanAndAllFigures) {
    constexpr qint64 size = 3 * 1048576 + 4999;
    const auto outcome = runHost({"run", "--json", "--size", std::to_string(size), "--write-block", "-7",
                                  "--read-block=64KiB", "--random-block", "5000", "--random-ops", "600",
                                  "--file-ops", "70", "--sample-interval", "0", "--cached", "--", folder});
    ASSERT_EQ(outcome.exitStatus, 0) << outcome.errors;
    EXPECT_EQ(outcome.errors, "");
    const QJsonObject run = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object();

    const QByteArray expectedPlan =
        R"({"tests": ["sequentialWrite", "sequentialRead", "randomRead", "randomWrite",
        "fileOps"], "size": {"fixed": 3150727}, "writeBlockSize": -7, "readBlockSize": 65536, "randomBlockSize": 5000,
        "randomOpCount": 600, "fileOpCount": 70, "bypassCache": false, "sampleInterval": 0})";
    EXPECT_EQ(run["plan"].toObject(), QJsonDocument::fromJson(expectedPlan).object());
    expectSequential(run["sequentialWrite"].toObject(), size, 4096);
    expectSequential(run["sequentialRead"].toObject(), size, 65536);
    expectRandom(run["randomRead"].toObject(), 600, 8192);
    expectRandom(run["randomWrite"].toObject(), 600, 8192);
    const QJsonObject fileOps = run["fileOps"].toObject();
    EXPECT_EQ(fileOps.keys(), QStringList({"create", "delete", "rename", "stat"}));
    for (const QJsonValue phase : fileOps) {
        EXPECT_EQ(phase["operations"].toInteger(), 70);
        EXPECT_DOUBLE_EQ(phase["opsPerSecond"].toDouble(), 70 / phase["duration"].toDouble());
    }
    const auto tried = OndelCore::platform::tryAbilities(OndelCore::platform::openFolder(folder).get());
    const QJsonObject capabilities = run["capabilities"].toObject();
    EXPECT_EQ(capabilities.size(), tried.sparseFiles.has_value() + tried.cloning.has_value());
    EXPECT_EQ(capabilities["supportsSparseFiles"].toBool(), tried.sparseFiles.value_or(false));
    EXPECT_EQ(capabilities["supportsCloning"].toBool(), tried.cloning.value_or(false));
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(Run, TestsThatWereNotAskedForHaveNoKey) {
    const auto outcome = runHost({"run", "--json", "--tests", "fileOps,fileOps", "--size", "fill",
                                  "--leave-free", "1152921504606846976", folder});
    ASSERT_EQ(outcome.exitStatus, 0) << outcome.errors;
    const QJsonObject run = QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output)).object();
    QStringList keys = run.keys();
    keys.removeOne("drive"); // where one is known
    EXPECT_EQ(keys, QStringList({"capabilities", "connection", "date", "duration", "evidence", "fileOps",
                                 "fileSystem", "folder", "folderURL", "formatVersion", "id", "kernel", "kind",
                                 "plan", "remarks", "version", "volume"}));
    EXPECT_TRUE(run["folderURL"].toString().endsWith("/a%20b%FF%0A"));
    EXPECT_TRUE(run["evidence"].toObject().contains("createLatency"));
    const QJsonObject fill{{"fillDisk", QJsonObject{{"leaveFree", qint64{1} << 60}}}};
    EXPECT_EQ(run["plan"]["size"].toObject(), fill);
    EXPECT_EQ(run["plan"]["sampleInterval"].toDouble(), 0.02);
}

TEST_F(Run, FailuresAreOneSentence) {
    const auto tooLarge = runHost({"run", "--size", "1048576T", folder});
    EXPECT_EQ(tooLarge.exitStatus, 1);
    EXPECT_EQ(tooLarge.errors.find("Not enough space: needs 1048576.0 TiB, only "), 0U) << tooLarge.errors;
    const auto tooSmall = runHost({"run", "--tests", "randomRead", "--size", "0", folder});
    EXPECT_EQ(tooSmall.exitStatus, 1);
    EXPECT_EQ(tooSmall.errors, "The test file is too small for the random block size.\n");
    const auto noDisk = runHost({"run", "--tests", "fileOps", "/proc"});
    EXPECT_EQ(noDisk.exitStatus, 1);
    EXPECT_EQ(noDisk.errors.find("Couldn’t write there."), 0U) << noDisk.errors;
    EXPECT_EQ(tooLarge.output + tooSmall.output + noDisk.output, "");
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(Run, FailsIfTheOutputCannotBeWritten) {
    for (const Output output : {Output::closed, Output::fullDevice, Output::brokenPipe}) {
        const auto outcome = runHost({"run", "--tests", "fileOps", "--file-ops", "1", folder}, output);
        EXPECT_EQ(outcome.exitStatus, 1);
        EXPECT_EQ(outcome.errors.find("The result could not be written: "), 0U) << outcome.errors;
    }
    EXPECT_TRUE(folderIsEmpty());
}

/// The disk is an image on a full tmpfs: writes succeed in the cache and fail at the flush.
TEST(FailedFlush, IsReportedBesideTheFigures) {
    const test::LoopMount memory("tmpfs", 24 << 20);
    const test::LoopMount volume("ext2", 1400 << 20, {}, {"-q"}, memory.path());
    if (const std::string problem = memory.problem() + volume.problem(); !problem.empty())
        GTEST_SKIP() << problem;
    const std::string megabyte(1 << 20, 'x');
    for (std::ofstream filler(memory.path() / "filler"); filler.write(megabyte.data(), 1 << 20).flush();)
        continue;
    const auto outcome = runHost({"run", "--cached", "--tests", "sequentialWrite,randomRead,randomWrite",
                                  "--size", "4M", "--random-ops", "50", volume.path()});
    EXPECT_EQ(outcome.exitStatus, 0);
    const QString lost =
        ": the flush to the medium failed \\([^()]+\\); not all that was written may be there.\n";
    const QRegularExpression told("\\ASequential write" + lost + "Random write \\(4 KiB\\)" + lost + "\\z");
    EXPECT_TRUE(QString::fromStdString(outcome.errors).contains(told)) << outcome.errors;
    EXPECT_NE(outcome.output.find("\nSequential write "), std::string::npos) << outcome.output;
    EXPECT_EQ(std::distance(fs::directory_iterator(volume.path()), {}), 1) << "but for lost+found";
}

TEST_F(Run, LeavesAnotherRunInTheSameFolderAlone) {
    HostProcess first({.arguments = endlessRun()});
    test::waitForWorkingFolder(folder);
    EXPECT_EQ(runHost({"run", "--tests", "fileOps", "--file-ops", "1", folder}).exitStatus, 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
    first.signal(SIGTERM);
    EXPECT_EQ(first.wait().exitStatus, 130);
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(Run, DoesNotWaitForForeignLocks) {
    const std::vector<std::string> shortRun{"run", "--tests", "fileOps", "--file-ops", "1", folder};
    const fs::path left = folder / ".ondel-analyzer-OLD";
    fs::create_directory(left);
    for (const fs::path& locked : {left, folder}) {
        const auto held = OndelCore::platform::openFolder(locked);
        ASSERT_EQ(flock(held.get(), LOCK_EX), 0);
        const auto outcome = runHost(shortRun);
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.errors,
                  locked == left ? "Files of another run in this folder are in use and were not removed.\n"
                                 : "");
        EXPECT_EQ(fs::exists(left), locked == left);
    }
    EXPECT_TRUE(folderIsEmpty());
}

TEST_F(Run, RemovesItsFilesAfterSignals) {
    struct Case {
        std::vector<int> signals;
        bool ignoresInterrupt = false;
    };
    const std::vector<Case> cases{
        {{SIGINT}}, {{SIGTERM}}, {{SIGHUP}}, {{SIGINT}, true}, {{SIGINT, SIGQUIT, SIGTERM, SIGINT, SIGHUP}}};
    for (const Case& each : cases) {
        HostProcess run({.arguments = endlessRun(), .ignoresInterrupt = each.ignoresInterrupt});
        test::waitForWorkingFolder(folder);
        for (const int signal : each.signals)
            run.signal(signal);
        const auto outcome = run.wait();
        EXPECT_EQ(outcome.exitStatus, 130);
        EXPECT_EQ(outcome.output + outcome.errors, "");
        EXPECT_TRUE(folderIsEmpty());
    }
}

TEST_F(Run, ShowsProgressOnOneLineAndErasesIt) {
    constexpr int columns = 60;
    HostProcess run({.arguments = endlessRun(), .terminalColumns = columns});
    ASSERT_TRUE(run.terminalShows("Random read (4 KiB)"));
    ASSERT_TRUE(run.terminalShows("of 1,000,000,000"));
    run.signal(SIGINT);
    const auto outcome = run.wait();
    EXPECT_EQ(outcome.exitStatus, 130);
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.errors.ends_with("\r\x1b[K")) << outcome.errors;
    EXPECT_EQ(outcome.errors.find('\n'), std::string::npos);
    const QString shown = QString::fromStdString(outcome.errors);
    for (const QString& frame : shown.split("\x1b[K"))
        EXPECT_LT(frame.size(), columns + 1) << frame.toStdString(); // with its "\r"
    EXPECT_TRUE(folderIsEmpty());
}

} // namespace
