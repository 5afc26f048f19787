#include "TarnwickKit/model/runs/HistoryStore.h"

#include "HistoryHarness.h"

#include <sys/stat.h>
#include <sys/wait.h>

namespace TarnwickKit::model {

namespace {

using HistoryStoreTest = HistoryFolder;

TEST_F(HistoryStoreTest, KeepsTheNewestRunsAcrossRestarts) {
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

    // A larger file is kept whole until the next run is added.
    std::string sixty;
    for (int count = 0; count < 60; ++count)
        sixty += (count ? "," : "[") + encodeRun(fullRun(1))->toStdString();
    put(file, sixty + "]");
    HistoryStore larger(folder.path());
    EXPECT_EQ(larger.runs().size(), 60u);
    larger.add(fullRun(1));
    EXPECT_EQ(larger.runs().size(), 50u);
}

TEST_F(HistoryStoreTest, WritesOnlyOnChanges) {
    HistoryStore store(folder.path());
    int announced = 0;
    QObject::connect(&store, &HistoryStore::runsChanged, &store, [&] { ++announced; });
    RunRecord run = fullRun(2);
    store.add(run);
    const RunRecord original = run;
    const auto fileNumber = [this] { // each save replaces the file by a new one
        struct stat status{};
        return stat(file.c_str(), &status) == 0 ? status.st_ino : 0;
    };
    const ino_t number = fileNumber();

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

/// Two windows change one history that begins with the runs 0 and 1. Each case names what the file then
/// holds, newest first.
TEST_F(HistoryStoreTest, MergesChangesOfOtherWindows) {
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
        {"a deleted run does not return with the other's next save",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), other.add(run[2]); },
         {run[2], run[1]}},
        {"a clear deletes all but the runs that it has not seen",
         [&](auto& one, auto& other) { other.add(run[2]), one.clear(), other.add(run[3]); },
         {run[3], run[2]}},
        {"a deleted run that is added again returns in all windows",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), one.add(run[0]), other.save(); },
         {run[0], run[1]}},
        {"a deleted run that the other window adds again",
         [&](auto& one, auto& other) {
             one.deleteRun(run[0].id), other.deleteRun(run[0].id), other.add(run[0]), one.save();
         },
         {run[0], run[1]}},
        {"titles of different runs",
         [&](auto& one, auto& other) { one.setTitle("a", run[0].id), other.setTitle("b", run[1].id); },
         {titled(1, "b"), titled(0, "a")}},
        {"the later title of one run",
         [&](auto& one, auto& other) {
             one.setTitle("a", run[0].id), other.setTitle("b", run[0].id), one.save();
         },
         {run[1], titled(0, "b")}},
        {"a title given to a run that the other deletes",
         [&](auto& one, auto& other) { one.deleteRun(run[0].id), other.setTitle("b", run[0].id); },
         {run[1]}},
        {"an older copy replaces the file",
         [&](auto& one, auto&) {
             fs::copy_file(file, backup), one.add(run[2]), fs::rename(backup, file), one.add(run[3]);
         },
         {run[3], run[2], run[1], run[0]}},
        {"an older copy with a run that was deleted since",
         [&](auto& one, auto& other) {
             fs::copy_file(file, backup), one.deleteRun(run[0].id), fs::rename(backup, file),
                 other.add(run[2]), one.add(run[3]);
         },
         {run[3], run[2], run[1], run[0]}},
        {"the file is lost", [&](auto& one, auto&) { fs::remove(file), one.save(); }, {run[1], run[0]}},
        {"a writer without the lock",
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

/// Becomes a user that the user database does not know.
void beNobody(const fs::path& folder) {
    constexpr uid_t nobody = 54321;
    if (chown(folder.c_str(), nobody, nobody) != 0 || chdir(folder.c_str()) != 0 || setuid(nobody) != 0)
        _exit(77);
    for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        unsetenv(variable);
}

TEST(HistoryOfAUserWithoutFolders, StaysInMemory) {
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

} // namespace

} // namespace TarnwickKit::model
