// Runs in folders where others change things meanwhile: nothing of theirs is touched, and nothing is left.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/WorkingFolder.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "support/LoopMount.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

using namespace OndelCore::benchmark;
using namespace OndelCore::platform;
using test::contentOf;
using test::everyTest;
using test::FakeSystem;
using test::smallPlan;
using enum BenchmarkTest;
namespace fs = std::filesystem;

namespace {

const BenchmarkPlan wholePlan = smallPlan(everyTest, BenchmarkSize::fixed(65536));
constexpr auto precious = "what must not be lost";

fs::path workingFolderIn(const fs::path& folder) {
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().filename().native().starts_with(".ondel-analyzer-"))
            return entry.path();
    return {};
}

/// Lets `happen` take place once, at the first event of a run's first test.
void once(FakeSystem& system, std::function<void()> happen) {
    system.onProgress = [happen = std::move(happen), done = false](const auto&) mutable {
        if (!std::exchange(done, true))
            happen();
    };
}

TEST(MovedAway, ARunStaysWithItsFolder) {
    const test::TemporaryFolder top;
    const fs::path target = top.path() / "target", other = top.path() / "other", link = top.path() / "link";
    const std::pair<fs::path, std::function<void()>> cases[]{
        {target, [&] { fs::rename(target, top.path() / "renamed"); }},
        {target, [&] { fs::rename(workingFolderIn(target), other / "stolen"); }},
        {link, [&] { fs::remove(link), fs::create_directory_symlink(other, link); }},
    };
    for (const auto& [folder, happen] : cases) {
        fs::create_directory(target);
        fs::create_directory(other);
        fs::create_directory_symlink(target, link);
        FakeSystem system;
        once(system, happen);
        EXPECT_EQ(system.failureOf(wholePlan, folder), "");
        for (const fs::path& each : {target, other, top.path() / "renamed"}) {
            EXPECT_TRUE(!fs::exists(each) || fs::is_empty(each)) << each;
            fs::remove(each);
        }
        fs::remove(link);
    }
}

TEST(MovedAway, ARunStaysWithAFileSystemThatIsUnmounted) {
    const test::LoopMount volume("tmpfs", 4 << 20);
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    const FileDescriptor root = openFolder(volume.path());
    FakeSystem system;
    once(system, [&] { EXPECT_EQ(umount2(volume.path().c_str(), MNT_DETACH), 0); });
    EXPECT_EQ(system.failureOf(wholePlan, volume.path()), "");
    EXPECT_TRUE(fs::is_empty(volume.path()));
    EXPECT_EQ(namesIn(root.get()), std::vector<std::string>());
}

TEST(WorkingFolder, BelongsToTheUserWhoMeasures) {
    const test::TemporaryFolder folder;
    const FileDescriptor opened = openFolder(folder.path());
    EXPECT_THROW(WorkingFolder(opened.get(), geteuid() + 1), std::system_error);
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(DataFile, IsOneFileForTheWholeRun) {
    const test::TemporaryFolder folder, elsewhere;
    const fs::path file = elsewhere.path() / "file";
    const auto data = [&] { return workingFolderIn(folder.path()) / "data.bin"; };
    const std::function<void()> links[]{[&] { fs::create_symlink(file, data()); },
                                        [&] { fs::create_hard_link(file, data()); },
                                        [&] { mkfifo(data().c_str(), 0600); }};
    const std::string stale = "Stale file handle", loop = "Too many levels of symbolic links";
    const std::string expected[]{loop, stale, stale};
    for (std::size_t i = 0; i < std::size(links); ++i) {
        std::ofstream(file) << precious;
        for (const BenchmarkTest test : {sequentialRead, randomRead, randomWrite}) {
            FakeSystem system;
            system.flushToMedium = [&](int) {
                fs::remove(data());
                links[i]();
                return std::error_code();
            };
            EXPECT_EQ(system.failureOf(smallPlan({test}, BenchmarkSize::fixed(8192)), folder.path()),
                      (test == sequentialRead ? "open(read): " : "open(random): ") + expected[i]);
        }
        for (const BenchmarkTest test : {sequentialWrite, sequentialRead}) {
            FakeSystem system;
            system.freeBytes = [&](int) { return links[i](), std::int64_t{1} << 40; };
            EXPECT_EQ(system.failureOf(smallPlan({test}, BenchmarkSize::fixed(8192)), folder.path()),
                      (test == sequentialRead ? "open(prepare): " : "open(write): ") +
                          std::string("File exists"));
        }
        EXPECT_EQ(contentOf(file), precious);
        EXPECT_TRUE(fs::is_empty(folder.path()));
    }
}

/// A process of another user who may write the measured folder. For each working folder that is not its own
/// it puts one of its own in the place, with a link to the victim's file as its data file.
class Attacker {
public:
    static constexpr uid_t user = 65534;

    explicit Attacker(int folder) {
        if (pipe2(m_orders, O_CLOEXEC) != 0 || pipe2(m_reports, O_CLOEXEC) != 0)
            abort();
        m_process = fork();
        if (m_process == 0) {
            close(m_orders[1]);
            if (setgid(user) == 0 && setuid(user) == 0)
                obey(folder);
            _exit(0);
        }
        close(m_orders[0]);
        close(m_reports[1]);
    }
    ~Attacker() {
        close(m_orders[1]);
        close(m_reports[0]);
        waitpid(m_process, nullptr, 0);
    }
    Attacker(const Attacker&) = delete;

    /// Strikes once, and returns when it is done.
    void strike() const {
        char report = 's';
        EXPECT_EQ(write(m_orders[1], &report, 1), 1);
        EXPECT_EQ(read(m_reports[0], &report, 1), 1);
    }
    /// Strikes until the object goes.
    void strikeOnAndOn() const { EXPECT_EQ(write(m_orders[1], "r", 1), 1); }

private:
    void obey(int folder) const {
        char order = 0;
        while (read(m_orders[0], &order, 1) == 1) {
            pollfd end{.fd = m_orders[0], .events = POLLIN, .revents = 0};
            do
                exchangeIn(folder);
            while (order == 'r' && poll(&end, 1, 0) == 0);
            if (write(m_reports[1], &order, 1) != 1)
                return;
        }
    }
    static void exchangeIn(int folder) {
        static int stolen = 0;
        for (const std::string& name : namesIn(folder)) {
            struct stat facts{};
            if (!name.starts_with(".ondel-analyzer-") ||
                fstatat(folder, name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) != 0 || facts.st_uid == user)
                continue;
            renameat(folder, name.c_str(), folder, (".stolen-" + std::to_string(stolen++)).c_str());
            mkdirat(folder, name.c_str(), 0777);
            symlinkat("../victim", folder, (name + "/data.bin").c_str());
        }
    }

    int m_orders[2]{};
    int m_reports[2]{};
    pid_t m_process = -1;
};

/// A folder that everybody may write, with a file in it that only the user who measures may: root, or not.
struct SharedFolder : testing::TestWithParam<uid_t> {
    void SetUp() override {
        if (geteuid() != 0)
            GTEST_SKIP() << "two users take root";
        std::ofstream(victim) << precious;
        fs::permissions(folder.path(), fs::perms::all);
        fs::permissions(victim, fs::perms::owner_read | fs::perms::owner_write);
        ASSERT_EQ(chown(victim.c_str(), GetParam(), GetParam()), 0);
        ASSERT_EQ(chdir(folder.path().c_str()), 0); // the way there is closed to other users
    }
    void TearDown() override {
        EXPECT_EQ(contentOf(victim), precious);
        EXPECT_EQ(chdir("/"), 0);
    }
    /// What a run as the test's user failed with.
    std::string failure() {
        EXPECT_EQ(seteuid(GetParam()), 0);
        std::string text = system.failureOf(wholePlan, ".");
        EXPECT_EQ(seteuid(0), 0);
        return text;
    }

    const test::TemporaryFolder folder{test::inMemory()};
    const fs::path victim = folder.path() / "victim";
    FakeSystem system;
};

TEST_P(SharedFolder, WhatTakesTheWorkingFoldersPlaceIsNotTouched) {
    const FileDescriptor opened = openFolder(folder.path());
    const Attacker attacker(opened.get());
    for (const bool beforeFirstOpen : {true, false}) {
        system.freeBytes = [&](int) {
            if (beforeFirstOpen)
                attacker.strike();
            return std::int64_t{1} << 40;
        };
        system.flushToMedium = [&](int) {
            if (!beforeFirstOpen)
                attacker.strike();
            return std::error_code();
        };
        EXPECT_EQ(failure(), "");
        EXPECT_EQ(contentOf(victim), precious);
        const fs::path theirs = workingFolderIn(folder.path());
        EXPECT_TRUE(fs::is_symlink(theirs / "data.bin"));
        EXPECT_EQ(test::entriesIn(folder.path()), 2U); // that, and the victim's file
        BenchmarkEngine::cleanupOrphans(folder.path());
        EXPECT_EQ(test::entriesIn(folder.path()), 1U);
    }
}

TEST_P(SharedFolder, ARaceForItIsNotLost) {
    const FileDescriptor opened = openFolder(folder.path());
    {
        const Attacker attacker(opened.get());
        attacker.strikeOnAndOn();
        for (int run = 0; run < 50; ++run)
            EXPECT_EQ(failure(), "");
    }
    // Of a run that lost a folder before it had opened it, the empty folder may stay; of data nothing does.
    for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
        EXPECT_TRUE(entry.path() == victim || entry.is_symlink() || entry.is_directory()) << entry.path();
}

INSTANTIATE_TEST_SUITE_P(Users, SharedFolder, testing::Values(0, 1001));

TEST(Confinement, KeepsTheRunsThreadFromWritingElsewhere) {
    const test::TemporaryFolder folder, elsewhere;
    EngineEnvironment system;
    std::optional<bool> isConfined;
    int read = -1, written = 0;
    system.freeBytes = [](int) { return std::int64_t{1} << 40; };
    system.confineWrites = [&](int working) {
        isConfined = confineWritesOfThisThread(working);
        return *isConfined;
    };
    const auto listen = [&](const BenchmarkProgress& progress) {
        if (progress.test == BenchmarkTest::fileOps)
            return;
        read = open("/proc/self/status", O_RDONLY | O_CLOEXEC);
        written = open((elsewhere.path() / "file").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        close(read);
    };
    const BenchmarkResult result = runInFolder(system, wholePlan, folder.path(), CancelFlag(), listen);
    EXPECT_TRUE(result.randomWrite && result.fileOps);
    EXPECT_GE(read, 0);
    EXPECT_TRUE(fs::is_empty(folder.path()));
    ASSERT_TRUE(isConfined.has_value()) << "the run has not asked for it";
    if (!*isConfined)
        GTEST_SKIP() << "the kernel has no Landlock";
    EXPECT_EQ(written, -1);
    std::ofstream(elsewhere.path() / "file").put('x'); // this thread is as it was
    EXPECT_TRUE(fs::exists(elsewhere.path() / "file"));
}

struct HidingVolume : testing::TestWithParam<const char*> {};

TEST_P(HidingVolume, ASweepEndsWhileALeftFileIsOpen) {
    test::LoopMount volume(GetParam(), 32 << 20, {},
                           std::string(GetParam()) == "ntfs" ? std::vector<std::string>{"-q", "-F"}
                                                             : std::vector<std::string>{});
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    const fs::path left = volume.path() / ".ondel-analyzer-OLD";
    fs::create_directory(left);
    {
        std::ofstream held(left / "data.bin");
        BenchmarkEngine::cleanupOrphans(volume.path());
        EXPECT_TRUE(fs::exists(left));
        FakeSystem system; // meanwhile runs go on
        EXPECT_EQ(system.failureOf(wholePlan, volume.path()), "");
    }
    BenchmarkEngine::cleanupOrphans(volume.path());
    EXPECT_EQ(workingFolderIn(volume.path()), fs::path());
    EXPECT_TRUE(volume.unmount());
}

INSTANTIATE_TEST_SUITE_P(FileSystems, HidingVolume, testing::Values("ntfs", "exfat"));

} // namespace
