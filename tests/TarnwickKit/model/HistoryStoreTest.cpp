#include "TarnwickKit/model/HistoryStore.h"

#include "SampleRun.h"
#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecordJson.h"
#include "TarnwickKit/model/TarnwickFile.h"
#include "TarnwickKit/model/TarnwickReport.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <fstream>
#include <random>
#include <thread>

namespace TarnwickKit::model {

namespace {

namespace fs = std::filesystem;

void put(const fs::path& path, const std::string& content) {
    std::ofstream(path, std::ios::binary) << content;
}

std::vector<fs::path> filesBeginningWith(const fs::path& folder, const char* prefix) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.path().filename().native().starts_with(prefix))
            found.push_back(entry.path());
    }
    return found;
}

struct History : testing::Test {
    test::TemporaryFolder folder;
    fs::path file = folder.path() / "history.json";

    std::optional<std::vector<RunRecord>> stored() const {
        const auto content = readRunFile(file);
        return content ? decodeRuns(*content) : std::nullopt;
    }
    /// A change of the file is a new file in its place.
    ino_t fileNumber() const {
        struct stat status {};
        return stat(file.c_str(), &status) == 0 ? status.st_ino : 0;
    }
};

TEST_F(History, KeepsTheNewestRunsAcrossRestarts) {
    std::vector<QUuid> ids;
    {
        HistoryStore store(folder.path());
        EXPECT_FALSE(fs::exists(file));
        for (int count = 0; count < 51; ++count) {
            store.add(fullRun(2));
            ids.insert(ids.begin(), store.runs().front().id);
        }
    }
    ids.pop_back();
    const HistoryStore store(folder.path());
    ASSERT_EQ(store.runs().size(), 50u);
    for (std::size_t index = 0; index < ids.size(); ++index)
        EXPECT_EQ(store.runs()[index].id, ids[index]);
    EXPECT_EQ(stored(), store.runs());
    EXPECT_EQ(fs::status(file).permissions() & fs::perms::others_all, fs::perms::none);

    // A file of more is taken as it is until the next run.
    std::string sixty;
    for (int count = 0; count < 60; ++count)
        sixty += (count ? "," : "[") + encodeRun(fullRun(1))->toStdString();
    put(file, sixty + "]");
    HistoryStore larger(folder.path());
    EXPECT_EQ(larger.runs().size(), 60u);
    larger.add(fullRun(1));
    EXPECT_EQ(larger.runs().size(), 50u);
}

TEST_F(History, ChangesTheFileOnlyWhenToldTo) {
    HistoryStore store(folder.path());
    int announced = 0;
    QObject::connect(&store, &HistoryStore::runsChanged, &store, [&] { ++announced; });
    RunRecord run = fullRun(2);
    store.add(run);
    const RunRecord original = run;
    ino_t number = fileNumber();

    run.volumeName = "Another";
    store.add(run);
    EXPECT_EQ(store.runs().front(), original) << "the stored copy wins";
    store.setTitle("Title", QUuid::createUuid());
    EXPECT_EQ(fileNumber(), number);
    EXPECT_EQ(announced, 1);

    store.deleteRun(QUuid::createUuid());
    EXPECT_NE(fileNumber(), number);
    EXPECT_EQ(store.runs().size(), 1u);
    store.setTitle("Title", run.id);
    EXPECT_EQ(stored()->front().customTitle, "Title");
    store.setTitle(std::nullopt, run.id);
    EXPECT_EQ(stored()->front().customTitle, std::nullopt);
    store.clear();
    EXPECT_EQ(readRunFile(file), "[]");
    EXPECT_EQ(announced, 5);
}

TEST_F(History, KeepsAFileThatItCannotRead) {
    const std::string unreadable = "[" + encodeRun(fullRun(2))->toStdString() + ",{}]";
    put(file, unreadable);
    {
        HistoryStore store(folder.path());
        EXPECT_TRUE(store.runs().empty());
        EXPECT_EQ(readRunFile(file), unreadable);
        store.add(fullRun(2));
        store.add(fullRun(2));
    }
    EXPECT_EQ(stored()->size(), 2u);
    auto kept = filesBeginningWith(folder.path(), "history.unreadable-");
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(readRunFile(kept.front()), unreadable);

    for (int round = 0; round < 5; ++round) {
        put(file, "broken " + std::to_string(round));
        HistoryStore(folder.path()).save();
    }
    kept = filesBeginningWith(folder.path(), "history.unreadable-");
    ASSERT_EQ(kept.size(), 3u);
    std::ranges::sort(kept);
    EXPECT_EQ(readRunFile(kept.front()), "broken 2");
    EXPECT_EQ(readRunFile(kept.back()), "broken 4");

    // A clock that went back makes the newest file the oldest by its name; it is not the one to go.
    for (const fs::path& path : kept)
        fs::rename(path, folder.path() / ("history.unreadable-2999" + path.filename().string().substr(23)));
    put(file, "broken 5");
    HistoryStore(folder.path()).save();
    kept = filesBeginningWith(folder.path(), "history.unreadable-");
    ASSERT_EQ(kept.size(), 3u);
    EXPECT_EQ(readRunFile(*std::ranges::min_element(kept)), "broken 5");

    // Neither a folder nor a pipe in the file's place is read or lost.
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    HistoryStore store(folder.path());
    store.add(fullRun(2));
    EXPECT_EQ(stored()->size(), 1u);
}

TEST_F(History, NeverWritesWhatItCouldNotReadAgain) {
    HistoryStore store(folder.path());
    const RunRecord own = fullRun(), largeCurves = fullRun(100000);
    RunRecord largeTexts = fullRun(), unwritable = fullRun();
    largeTexts.volumeName = QString(9 * 1024 * 1024, 'x');
    unwritable.writeBps = std::numeric_limits<double>::infinity();
    for (const RunRecord& run : {own, largeCurves, largeTexts, unwritable, own})
        store.add(run);
    EXPECT_EQ(store.runs().size(), 4u);
    const auto written = stored();
    ASSERT_TRUE(written);
    ASSERT_EQ(written->size(), 2u);
    EXPECT_EQ((*written)[0].id, largeCurves.id);
    EXPECT_EQ((*written)[0].writeSamples.size(), 80u);
    EXPECT_EQ((*written)[1], own);
}

TEST_F(History, ForgivesAFolderThatCannotBe) {
    put(file, "");
    HistoryStore store(file);
    store.add(fullRun(2));
    EXPECT_EQ(store.runs().size(), 1u);
}

/// Runs `work`, and nothing after it, in a process of its own.
pid_t inChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    return child;
}

TEST_F(History, SurvivesBeingKilledInTheMiddleOfASave) {
    HistoryStore(folder.path()).add(fullRun());
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        int saves[2];
        ASSERT_EQ(pipe(saves), 0);
        const pid_t child = inChild([&] {
            HistoryStore store(folder.path());
            for (;;) {
                store.setTitle(QString::number(round), store.runs().front().id);
                if (store.runs().size() < 20)
                    store.add(fullRun());
                if (write(saves[1], "", 1) != 1)
                    return;
            }
        });
        char one = 0;
        ASSERT_EQ(read(saves[0], &one, 1), 1);
        // Somewhere in one of the next saves.
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(saves[0]);
        close(saves[1]);
        const auto runs = stored();
        ASSERT_TRUE(runs) << "round " << round;
        ASSERT_FALSE(runs->empty());
    }
    // A process killed between the file's two names leaves one behind, which goes when it is old.
    const auto left = filesBeginningWith(folder.path(), ".ondel-new-");
    for (const fs::path& path : left)
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1));
    put(folder.path() / ".ondel-new-fresh", "");
    HistoryStore store(folder.path());
    EXPECT_EQ(filesBeginningWith(folder.path(), ".ondel-new-").size(), 1u);
}

TEST_F(History, TwoWritersNeverTearTheFile) {
    HistoryStore(folder.path()).add(fullRun());
    for (int writer = 0; writer < 2; ++writer) {
        inChild([&] {
            HistoryStore store(folder.path());
            for (int saves = 0; saves < 30; ++saves)
                store.save();
        });
    }
    int status = 0;
    for (int ended = 0; ended<2; ended += waitpid(-1, &status, WNOHANG)> 0) {
        ASSERT_TRUE(stored());
        ASSERT_EQ(status, 0);
    }
}

TEST(TarnwickReport, HandsARunOver) {
    OndelCore::benchmark::BenchmarkResult result;
    result.sequentialRead = {1000000, 2.0, 4096, {{0.5, 3e6}, {1, 2e6}}};
    result.randomRead = {100, 0.5, 4096};
    const QDateTime date(QDate(2024, 5, 1), QTime(12, 34, 56), Qt::UTC);
    const TarnwickReport report = TarnwickReport::from(result, std::nullopt, std::nullopt, date, {});
    EXPECT_EQ(report.run.duration, 2.5);
    EXPECT_TRUE(report.writeCurve().empty());
    EXPECT_EQ(report.writeBytesPerSecond(), std::nullopt);
    EXPECT_EQ(report.readCurve(), (std::vector<QPointF>{{0.5, 3}, {1, 2}}));

    const auto path = report.handoffFile();
    ASSERT_TRUE(path);
    EXPECT_EQ(path, report.handoffFile());
    EXPECT_EQ(path->stem(), report.run.id.toString(QUuid::WithoutBraces).toUpper().toStdString());
    EXPECT_EQ(path->extension(), "." + std::string(TarnwickFile::runExtension));
    EXPECT_EQ(decodeRun(*readRunFile(*path)), report.run);
    EXPECT_EQ(fs::status(path->parent_path()).permissions(), fs::perms::owner_all);

    TarnwickReport unwritable = report;
    unwritable.run.writeBps = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(unwritable.handoffFile(), std::nullopt);
}

} // namespace

} // namespace TarnwickKit::model
