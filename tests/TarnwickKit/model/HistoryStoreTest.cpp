#include "TarnwickKit/model/runs/HistoryStore.h"

#include "SampleRun.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunRecordJson.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"
#include "support/TemporaryFolder.h"

#include <QTimeZone>

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
        struct stat status{};
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
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);

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
        EXPECT_EQ(store.runs().size(), 1u);
        EXPECT_EQ(readRunFile(file), unreadable);
        store.add(fullRun(2));
        store.add(fullRun(2));
    }
    EXPECT_EQ(stored()->size(), 3u);
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
    for (int round = 0; round < 100; ++round) {
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

std::vector<QUuid> idsOf(const std::vector<RunRecord>& runs) {
    std::vector<QUuid> ids;
    for (const RunRecord& run : runs)
        ids.push_back(run.id);
    return ids;
}

TEST_F(History, ProcessesThatWriteAtOnceLoseNoRun) {
    constexpr int writers = 3, runsOfEach = 15;
    for (int writer = 0; writer < writers; ++writer) {
        inChild([&] {
            HistoryStore store(folder.path());
            for (int count = 0; count < runsOfEach; ++count)
                store.add(fullRun(20));
        });
    }
    int status = 0;
    for (int ended = 0; ended < writers; ended += waitpid(-1, &status, WNOHANG) > 0) {
        ASSERT_TRUE(!fs::exists(file) || stored()) << "a torn file";
        ASSERT_EQ(status, 0);
    }
    EXPECT_EQ(stored()->size(), std::size_t{writers} * runsOfEach);
    EXPECT_TRUE(filesBeginningWith(folder.path(), "history.unreadable-").empty());
    EXPECT_EQ(fs::status(folder.path() / "history.json.lock").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

/// Two windows on one home, and what the file then holds, by the runs' numbers from new to old. Both begin
/// with the runs 0 and 1.
TEST_F(History, MergesWhatOthersChange) {
    std::vector<RunRecord> run;
    for (int count = 0; count < 4; ++count) {
        run.push_back(fullRun(2));
        run.back().customTitle = QString::number(count);
    }
    const auto titled = [&](int number, const char* title) {
        RunRecord copy = run[static_cast<std::size_t>(number)];
        copy.customTitle = title;
        return copy;
    };
    using Step = std::function<void(HistoryStore & one, HistoryStore & other)>;
    const auto backup = folder.path() / "backup";
    const struct {
        const char* what;
        Step step;
        std::vector<RunRecord> holds;
    } cases[] = {
        {"both add",
         [&](auto& one, auto& other) { one.add(run[2]), other.add(run[3]); },
         {run[3], run[2], run[1], run[0]}},
        {"a deleted run does not come back with the other's next",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), other.add(run[2]); },
         {run[2], run[1]}},
        {"nor do those of a clear, but for what was added unseen",
         [&](auto& one, auto& other) { other.add(run[2]), one.clear(), other.add(run[3]); },
         {run[3], run[2]}},
        {"whoever adds a deleted run again has it, in all windows",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), one.add(run[0]), other.save(); },
         {run[0], run[1]}},
        {"in the other window, too",
         [&](auto& one, auto& other) {
             one.deleteRun(run[0].id), other.deleteRun(run[0].id), other.add(run[0]), one.save();
         },
         {run[0], run[1]}},
        {"titles of different runs",
         [&](auto& one, auto& other) { one.setTitle("a", run[0].id), other.setTitle("b", run[1].id); },
         {titled(1, "b"), titled(0, "a")}},
        {"of one run the later title",
         [&](auto& one, auto& other) {
             one.setTitle("a", run[0].id), other.setTitle("b", run[0].id), one.save();
         },
         {run[1], titled(0, "b")}},
        {"a title given to a run that the other deletes",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), other.setTitle("b", run[0].id); },
         {run[1]}},
        {"an older copy is put in the file's place",
         [&](auto& one, auto&) {
             fs::copy_file(file, backup), one.add(run[2]), fs::rename(backup, file), one.add(run[3]);
         },
         {run[3], run[2], run[1], run[0]}},
        {"one with a run that was deleted since",
         [&](auto& one, auto& other) {
             fs::copy_file(file, backup), one.deleteRun(run[0].id), fs::rename(backup, file),
                 other.add(run[2]), one.add(run[3]);
         },
         {run[3], run[2], run[1], run[0]}},
        {"the file is lost", [&](auto& one, auto&) { fs::remove(file), one.save(); }, {run[1], run[0]}},
        {"a writer that does not know the lock",
         [&](auto& one, auto&) { put(file, "[" + encodeRun(run[2])->toStdString() + "]"), one.add(run[3]); },
         {run[3], run[1], run[0], run[2]}},
    };
    for (const auto& each : cases) {
        fs::remove_all(folder.path());
        HistoryStore one(folder.path());
        one.add({run[0], run[1]});
        HistoryStore other(folder.path());
        each.step(one, other);
        EXPECT_EQ(idsOf(*stored()), idsOf(each.holds)) << each.what;
        EXPECT_EQ(*stored(), each.holds) << each.what;
        one.refresh();
        other.refresh();
        EXPECT_EQ(one.runs(), each.holds) << each.what;
        EXPECT_EQ(other.runs(), each.holds) << each.what;
    }
}

TEST_F(History, TellsWhatOthersHaveChanged) {
    HistoryStore one(folder.path());
    one.add({fullRun(2), fullRun(2)});
    HistoryStore other(folder.path());
    QStringList told;
    QObject::connect(&one, &HistoryStore::runsChanged, &one, [&] { told << "runs"; });
    QObject::connect(&one, &HistoryStore::renamedElsewhere, &one,
                     [&](const QUuid&, const auto& title) { told << title.value_or("none"); });
    one.refresh();
    other.setTitle("New", one.runs().front().id);
    one.refresh();
    one.save();
    one.setTitle("Own", one.runs().front().id);
    EXPECT_EQ(told, QStringList({"runs", "New", "runs"}));
}

TEST_F(History, AddsManyWithOneSave) {
    int reads = 0;
    HistoryFile::Access access;
    access.read = [&](const fs::path& path, std::error_code& error) {
        ++reads;
        return readRunFile(path, error);
    };
    HistoryStore store(folder.path(), nullptr, access);
    int announced = 0;
    QObject::connect(&store, &HistoryStore::runsChanged, &store, [&] { ++announced; });
    reads = 0;
    store.add(fullRun(2));
    const int readsOfOne = std::exchange(reads, 0);
    std::vector<RunRecord> runs;
    for (int count = 0; count < 60; ++count)
        runs.push_back(fullRun(2));
    store.add(runs);
    EXPECT_EQ(reads, readsOfOne);
    EXPECT_EQ(announced, 2);
    ASSERT_EQ(store.runs().size(), 50u);
    EXPECT_EQ(store.runs().front().id, runs.back().id);
    EXPECT_EQ(store.runs(), stored());
}

TEST_F(History, NoticesAWriterThatDoesNotWaitForTheLock) {
    const RunRecord mine = fullRun(2), others = fullRun(2);
    int reads = 0;
    HistoryFile::Access access;
    access.read = [&](const fs::path& path, std::error_code& error) {
        auto content = readRunFile(path, error);
        if (++reads == 2) { // between what the store below merges with and its exchange of the file
            HistoryFile::Access hasty;
            hasty.lockPatience = {};
            HistoryStore(folder.path(), nullptr, hasty).add(others);
        }
        return content;
    };
    HistoryStore(folder.path(), nullptr, access).add(mine);
    EXPECT_EQ(idsOf(*stored()), idsOf({mine, others}));
}

TEST_F(History, LosesOneRunToOneDamage) {
    const RunRecord runs[] = {fullRun(159), fullRun(159), fullRun(159)};
    const std::string second = encodeRun(runs[1])->toStdString();
    const std::string all = "[" + encodeRun(runs[0])->toStdString() + "," + second + "," +
                            encodeRun(runs[2])->toStdString() + "]";
    const std::size_t begin = all.find(second);
    const auto changed = [&](std::size_t at, const std::string& by) {
        return std::string(all).replace(begin + at, by.size(), by);
    };
    const std::size_t curve = second.find("writeSamples");
    const struct {
        const char* what;
        std::string text;
        bool firstStays = true, lastStays = true;
    } cases[] = {
        {"a quotation mark lost", changed(1, "x")},
        {"a brace lost", changed(0, " ")},
        {"a brace more", changed(curve, "{")},
        {"a bracket more", changed(curve + 20, "]")},
        {"a missing field", changed(second.find("duration"), "curation")},
        {"a wrong value", changed(second.find("\"kind\":\"") + 8, "nowhere")},
        {"zeroes", changed(curve, std::string(400, '\0'))},
        {"a missing piece", std::string(all).erase(begin + curve, 500)},
        {"an end in the middle", all.substr(0, begin + curve), true, false},
        {"a beginning in the middle", all.substr(begin + curve), false, true},
        {"not even an array", all.substr(1), true, true},
    };
    for (const auto& each : cases) {
        fs::remove_all(folder.path());
        fs::create_directory(folder.path());
        put(file, each.text);
        std::vector<QUuid> expected;
        if (each.firstStays)
            expected.push_back(runs[0].id);
        if (each.text == all.substr(1))
            expected.push_back(runs[1].id);
        if (each.lastStays)
            expected.push_back(runs[2].id);
        HistoryStore store(folder.path());
        EXPECT_EQ(idsOf(store.runs()), expected) << each.what;
        store.save();
        EXPECT_EQ(idsOf(*stored()), expected) << each.what;
        const auto kept = filesBeginningWith(folder.path(), "history.unreadable-");
        ASSERT_EQ(kept.size(), 1u) << each.what;
        EXPECT_EQ(readRunFile(kept.front()), each.text) << each.what;
    }
    std::string notText = all;
    notText[begin + second.find("Vl") + 1] = '\xff';
    put(file, notText);
    EXPECT_EQ(HistoryStore(folder.path()).runs().size(), 3u) << "a byte that is no text";
}

TEST_F(History, TakesAReadErrorForNoDamage) {
    HistoryStore(folder.path()).add(fullRun(2));
    const std::string before = *readRunFile(file);
    int failures = 0;
    HistoryFile::Access access;
    access.read = [&](const fs::path& path, std::error_code& error) -> std::optional<std::string> {
        if (failures == 0)
            return readRunFile(path, error);
        --failures;
        error = std::make_error_code(std::errc::io_error);
        return std::nullopt;
    };
    const auto untouched = [&] {
        return readRunFile(file) == before &&
               filesBeginningWith(folder.path(), "history.unreadable-").empty();
    };
    failures = 1;
    EXPECT_EQ(HistoryStore(folder.path(), nullptr, access).runs().size(), 1u)
        << "one failure is not the last word";
    failures = 1000;
    HistoryStore store(folder.path(), nullptr, access);
    EXPECT_TRUE(store.runs().empty());
    const RunRecord run = fullRun(2);
    store.add(run);
    EXPECT_TRUE(untouched());
    failures = 0;
    store.save();
    ASSERT_EQ(stored()->size(), 2u);
    EXPECT_EQ(store.runs(), stored());
    EXPECT_EQ(stored()->front().id, run.id);
    EXPECT_TRUE(filesBeginningWith(folder.path(), "history.unreadable-").empty());
}

TEST_F(History, WritesThroughALinkAndLeavesItOne) {
    const test::TemporaryFolder elsewhere;
    const fs::path target = elsewhere.path() / "made later" / "runs.json",
                   middle = elsewhere.path() / "middle";
    fs::create_symlink("middle", elsewhere.path() / "first");
    fs::create_symlink("made later/runs.json", middle);
    fs::create_symlink(elsewhere.path() / "first", file);
    for (std::size_t count = 1; count <= 2; ++count) { // the first time it leads nowhere
        HistoryStore store(folder.path());
        store.add(fullRun(2));
        EXPECT_TRUE(fs::is_symlink(file) && fs::is_symlink(middle));
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(target)));
        EXPECT_EQ(decodeRuns(*readRunFile(target))->size(), count);
    }
    put(target, "broken");
    HistoryStore(folder.path()).add(fullRun(2));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(stored()->size(), 1u);
    EXPECT_EQ(filesBeginningWith(target.parent_path(), "history.unreadable-").size(), 1u);

    fs::remove(middle);
    fs::create_symlink("first", middle); // a circle
    HistoryStore store(folder.path());
    store.add(fullRun(2));
    EXPECT_EQ(store.runs().size(), 1u);
    EXPECT_TRUE(fs::is_symlink(file) && fs::is_symlink(middle));
}

TEST_F(History, ForgetsOldDeletionsBeforeTheirListGrowsLarge) {
    HistoryStore store(folder.path());
    const fs::path list = folder.path() / "history.json.lock";
    std::uintmax_t largest = 0;
    std::string lines;
    for (int count = 0; count < 950; ++count)
        lines += "-" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + "\n";
    put(list, lines);
    for (int round = 0; round < 4; ++round) {
        std::vector<RunRecord> runs;
        for (int count = 0; count < 50; ++count)
            runs.push_back(fullRun(0));
        store.add(runs);
        HistoryStore other(folder.path());
        store.clear();
        other.save();
        EXPECT_EQ(readRunFile(file), "[]") << "round " << round;
        largest = std::max(largest, fs::file_size(list));
    }
    EXPECT_LT(largest, 42000u);
    EXPECT_LT(fs::file_size(list), 30000u);
    put(list, "-nonsense\n\n" + std::string(100, 'x'));
    store.add(fullRun(0));
    EXPECT_EQ(stored()->size(), 1u);
    fs::remove(list);
    ASSERT_EQ(mkfifo(list.c_str(), 0600), 0);
    store.add(fullRun(0));
    store.deleteRun(store.runs().front().id);
    EXPECT_EQ(stored()->size(), 1u);
}

/// As a user whom the user database does not know.
void beNobody(const fs::path& folder) {
    constexpr uid_t nobody = 54321;
    if (chown(folder.c_str(), nobody, nobody) != 0 || chdir(folder.c_str()) != 0 || setuid(nobody) != 0)
        _exit(77);
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        unsetenv(variable);
}

TEST(HistoryOfAUserWithoutFolders, IsKeptInMemoryAlone) {
    const test::TemporaryFolder folder;
    const pid_t child = inChild([&] {
        beNobody(folder.path());
        for (const char* temporary : {"/nonexistent", "", ".", "/", "/proc"}) {
            setenv("TMPDIR", temporary, 1);
            HistoryStore store;
            store.add(fullRun(2));
            store.refresh();
            store.clear();
            store.add(fullRun(2));
            if (store.url() || store.runs().size() != 1)
                _exit(1);
        }
    });
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 77)
        GTEST_SKIP() << "no right to be another user";
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(TarnwickReport, HandsARunOver) {
    OndelCore::benchmark::BenchmarkResult result;
    result.sequentialRead = {1000000, 2.0, 4096, {{0.5, 3e6}, {1, 2e6}}};
    result.randomRead = {100, 0.5, 4096};
    const QDateTime date(QDate(2024, 5, 1), QTime(12, 34, 56), QTimeZone::utc());
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
