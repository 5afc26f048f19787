#include "TarnwickKit/model/runs/HistoryFile.h"

#include "HistoryHarness.h"

#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <thread>

namespace TarnwickKit::model {

namespace {

using HistoryFileTest = HistoryFolder;

TEST_F(HistoryFileTest, KeepsUnreadableFilesUnderAnotherName) {
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
    auto kept = keptFiles();
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(readRunFile(kept.front()), unreadable);

    for (int round = 0; round < 5; ++round) {
        put(file, "broken " + std::to_string(round));
        HistoryStore(folder.path()).save();
    }
    kept = keptFiles();
    ASSERT_EQ(kept.size(), 3u);
    std::ranges::sort(kept);
    EXPECT_EQ(readRunFile(kept.front()), "broken 2");
    EXPECT_EQ(readRunFile(kept.back()), "broken 4");

    // With a clock that went back, the newest file has the oldest name. It must not be the one removed.
    for (const fs::path& path : kept)
        fs::rename(path, folder.path() / ("history.unreadable-2999" + path.filename().string().substr(23)));
    put(file, "broken 5");
    HistoryStore(folder.path()).save();
    kept = keptFiles();
    ASSERT_EQ(kept.size(), 3u);
    EXPECT_EQ(readRunFile(*std::ranges::min_element(kept)), "broken 5");

    // A pipe in the file's place is replaced without being read.
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    HistoryStore store(folder.path());
    store.add(fullRun(2));
    EXPECT_EQ(stored()->size(), 1u);
}

TEST_F(HistoryFileTest, NeverWritesMoreThanItCanRead) {
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

TEST_F(HistoryFileTest, IsNeverTornByAKilledWriter) {
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
        // The kill hits an arbitrary point of one of the next saves.
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        close(saves[0]);
        close(saves[1]);
        const auto runs = stored();
        ASSERT_TRUE(runs) << "round " << round;
        ASSERT_FALSE(runs->empty());
    }
    // A killed process may leave a temporary file. It is removed when it is old.
    const auto left = filesBeginningWith(folder.path(), ".ondel-new-");
    for (const fs::path& path : left)
        fs::last_write_time(path, fs::file_time_type::clock::now() - std::chrono::hours(1));
    put(folder.path() / ".ondel-new-fresh", "");
    HistoryStore store(folder.path());
    EXPECT_EQ(filesBeginningWith(folder.path(), ".ondel-new-").size(), 1u);
}

TEST_F(HistoryFileTest, ConcurrentWritersLoseNoRun) {
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
    EXPECT_TRUE(keptFiles().empty());
    EXPECT_EQ(fs::status(folder.path() / "history.json.lock").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(HistoryFileTest, DetectsAWriterWithoutTheLock) {
    const RunRecord mine = fullRun(2), others = fullRun(2);
    int reads = 0;
    HistoryFile::Access access;
    access.read = [&](const fs::path& path, std::error_code& error) {
        auto content = readRunFile(path, error);
        if (++reads == 2) { // after the store below has merged, before it replaces the file
            HistoryFile::Access hasty;
            hasty.lockPatience = {};
            HistoryStore(folder.path(), nullptr, hasty).add(others);
        }
        return content;
    };
    HistoryStore(folder.path(), nullptr, access).add(mine);
    EXPECT_EQ(idsOf(*stored()), idsOf({mine, others}));
}

TEST_F(HistoryFileTest, DamageCostsOnlyTheDamagedRun) {
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
        {"a lost quotation mark", changed(1, "x")},
        {"a lost brace", changed(0, " ")},
        {"an extra brace", changed(curve, "{")},
        {"an extra bracket", changed(curve + 20, "]")},
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
        const auto kept = keptFiles();
        ASSERT_EQ(kept.size(), 1u) << each.what;
        EXPECT_EQ(readRunFile(kept.front()), each.text) << each.what;
    }
    std::string notText = all;
    notText[begin + second.find("Vl") + 1] = '\xff';
    put(file, notText);
    EXPECT_EQ(HistoryStore(folder.path()).runs().size(), 3u) << "a byte that is not UTF-8";
}

TEST_F(HistoryFileTest, ReadErrorIsNotDamage) {
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
    const auto untouched = [&] { return readRunFile(file) == before && keptFiles().empty(); };
    failures = 1;
    EXPECT_EQ(HistoryStore(folder.path(), nullptr, access).runs().size(), 1u)
        << "a single failure is retried";
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
    EXPECT_TRUE(keptFiles().empty());
}

TEST_F(HistoryFileTest, WritesThroughSymbolicLinks) {
    const test::TemporaryFolder elsewhere;
    const fs::path target = elsewhere.path() / "made later" / "runs.json",
                   middle = elsewhere.path() / "middle";
    fs::create_symlink("middle", elsewhere.path() / "first");
    fs::create_symlink("made later/runs.json", middle);
    fs::create_symlink(elsewhere.path() / "first", file);
    for (std::size_t count = 1; count <= 2; ++count) { // at first the link is dangling
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
    fs::create_symlink("first", middle); // a cycle
    HistoryStore store(folder.path());
    store.add(fullRun(2));
    EXPECT_EQ(store.runs().size(), 1u);
    EXPECT_TRUE(fs::is_symlink(file) && fs::is_symlink(middle));
}

TEST_F(HistoryFileTest, BoundsTheListOfDeletions) {
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

} // namespace

} // namespace TarnwickKit::model
