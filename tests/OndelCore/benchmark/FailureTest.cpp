// Runs that go wrong: each ends with the error or the result it should, and leaves no file and no descriptor.

#include "FakeSystem.h"
#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/platform/storage/OpenFolders.h"

#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <new>
#include <thread>

using namespace OndelCore::benchmark;
using test::everyTest;
using test::FakeSystem;
using test::smallPlan;
using enum BenchmarkTest;
namespace fs = std::filesystem;

namespace {

thread_local std::size_t allocations = 0;

struct Failure : testing::Test {
    ~Failure() override {
        EXPECT_EQ(test::entriesIn(folder.path()), 0U);
        std::vector<std::string> leaked;
        std::ranges::set_difference(test::openDescriptors(), descriptorsBefore, std::back_inserter(leaked));
        EXPECT_EQ(leaked, std::vector<std::string>());
    }
    test::TemporaryFolder folder;
    FakeSystem system;
    std::set<std::string> descriptorsBefore = test::openDescriptors();
};

template <class Transfer>
auto failingAt(int call, int error, Transfer transfer) {
    return [=, calls = 0](auto... arguments) mutable -> ssize_t {
        if (++calls == call) {
            errno = error;
            return -1;
        }
        return transfer(arguments...);
    };
}

/// A transfer that fails, and a folder that vanishes before the next name in it is used.
TEST_F(Failure, EndsTheRunWithTheNameOfTheCall) {
    const auto vanish = [this] {
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove_all(entry);
    };
    const auto beforeFirstOpen = [&](FakeSystem& bent) {
        bent.freeBytes = [&](const auto&) { return vanish(), std::int64_t{1} << 40; };
    };
    const auto afterTheFile = [&](FakeSystem& bent) {
        bent.flushToMedium = [&](int) { return vanish(), std::error_code(); };
    };
    const auto atFileOp = [&](std::int64_t steps) {
        return [&, steps](FakeSystem& bent) {
            bent.onProgress = [&, steps](const auto& now) {
                now.completedBytes == steps ? vanish() : void();
            };
        };
    };
    const std::string missing = "No such file or directory";
    const struct {
        BenchmarkTest test;
        std::function<void(FakeSystem&)> bend;
        std::string text;
    } cases[]{
        {sequentialWrite, [](auto& s) { s.write = failingAt(3, EIO, s.write); }, "write: Input/output error"},
        {sequentialWrite, [](auto& s) { s.write = failingAt(3, ENOSPC, s.write); },
         "write: No space left on device"},
        {sequentialRead, [](auto& s) { s.write = failingAt(3, EIO, s.write); },
         "write(prepare): Input/output error"},
        {sequentialRead, [](auto& s) { s.read = failingAt(3, EIO, s.read); }, "read: Input/output error"},
        {randomRead, [](auto& s) { s.pread = failingAt(3, EIO, s.pread); }, "pread: Input/output error"},
        {randomWrite, [](auto& s) { s.pwrite = failingAt(3, EROFS, s.pwrite); },
         "pwrite: Read-only file system"},
        {sequentialWrite, beforeFirstOpen, "open(write): " + missing},
        {sequentialRead, beforeFirstOpen, "open(prepare): " + missing},
        {sequentialRead, afterTheFile, "open(read): " + missing},
        {randomRead, afterTheFile, "open(random): " + missing},
        {fileOps, atFileOp(0), "create: " + missing},
        {fileOps, atFileOp(256), "rename: " + missing}, // the phase of lstat complains of nothing
        {fileOps, atFileOp(768), "unlink: " + missing},
    };
    for (const auto& [test, bend, text] : cases) {
        FakeSystem bent;
        bend(bent);
        auto plan = smallPlan({test}, BenchmarkSize::fixed(8 * 4096));
        plan.fileOpCount = 256;
        EXPECT_EQ(bent.failureOf(plan, folder.path()), text);
    }
    EXPECT_EQ(system.failureOf(smallPlan({randomRead}, BenchmarkSize::fixed(4095)), folder.path()),
              "file too small for a random block");
}

TEST_F(Failure, CancelTakesEffectBeforeTheNextCall) {
    auto plan = smallPlan(everyTest, BenchmarkSize::fixed(8 * 4096));
    for (const BenchmarkTest test : allBenchmarkTests) {
        FakeSystem bent;
        bent.onProgress = [&](const auto& now) {
            if (now.test == test)
                bent.flag.cancel();
        };
        EXPECT_EQ(bent.failureOf(plan, folder.path()), "cancelled") << rawValue(test);
        std::erase(bent.diary, "clock");
        EXPECT_TRUE(bent.diary.back().starts_with("progress " + std::string(rawValue(test))));
    }
    plan.tests = {sequentialRead};
    FakeSystem bent;
    bent.write = [&, write = bent.write](auto... arguments) {
        return bent.flag.cancel(), write(arguments...);
    };
    EXPECT_EQ(bent.failureOf(plan, folder.path()), "cancelled");
    EXPECT_EQ(bent.diary, (std::vector<std::string>{"free", "write 4096"}));
}

TEST_F(Failure, AnInterruptedTransferIsMadeAgainUntilCancelled) {
    system.write = failingAt(2, EINTR, system.write);
    const auto plan = smallPlan({sequentialWrite}, BenchmarkSize::fixed(8192));
    EXPECT_EQ(system.run(plan, folder.path()).sequentialWrite->bytesProcessed, 8192);
    system.write = [this](auto...) {
        system.flag.cancel();
        errno = EINTR;
        return -1;
    };
    EXPECT_EQ(system.failureOf(plan, folder.path()), "cancelled");
}

TEST_F(Failure, AShortWriteIsContinued) {
    std::uintmax_t length = 0;
    system.write = [&](int file, const void* bytes, std::size_t size) {
        const ssize_t written = write(file, bytes, std::min<std::size_t>(size, 1000));
        length += static_cast<std::uintmax_t>(written);
        return written;
    };
    for (const auto test : {sequentialWrite, sequentialRead}) { // which prepares the file by writing it
        length = 0;
        const auto result = system.run(smallPlan({test}, BenchmarkSize::fixed(10'000)), folder.path());
        EXPECT_EQ((result.sequentialWrite ? result.sequentialWrite : result.sequentialRead)->bytesProcessed,
                  10'000);
        EXPECT_EQ(length, 10'000U);
    }
}

TEST_F(Failure, NumbersBeyondTheMachineAreErrors) {
    auto plan = smallPlan({sequentialWrite}, BenchmarkSize::fixed(8192));
    plan.writeBlockSize = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(system.failureOf(plan, folder.path()), "memory: Cannot allocate memory");
    plan.tests = {fileOps};
    plan.fileOpCount = std::numeric_limits<std::int64_t>::max();
    EXPECT_EQ(system.failureOf(plan, folder.path()), "memory: Cannot allocate memory");
}

TEST_F(Failure, AFileSizeLimitIsAnErrorAndNotTheEndOfTheProcess) {
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1048576, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    BenchmarkPlan plan = smallPlan({sequentialWrite}, BenchmarkSize::fixed(2097152));
    plan.bypassCache = true;
    std::string text;
    try {
        BenchmarkEngine().run(plan, folder.path(), {}).waitForFinished();
    } catch (const std::exception& failure) {
        text = failure.what();
    }
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(text, "write: File too large");
}

TEST_F(Failure, AKilledRunIsSweptAway) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        system.onProgress = [&](const auto&) {
            [[maybe_unused]] const auto told = write(ends[1], "!", 1);
            pause();
        };
        system.run(smallPlan(everyTest, BenchmarkSize::fixed(1 << 20)), folder.path());
        _exit(0);
    }
    close(ends[1]); // so that the end of the child is the end of the wait
    char first = 0;
    EXPECT_EQ(read(ends[0], &first, 1), 1);
    close(ends[0]);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_EQ(test::entriesIn(folder.path()), 1U);

    const fs::path bystander = folder.path() / ".ondel-writeprobe-X", target = folder.path() / "target";
    std::ofstream(bystander).put('x');
    fs::create_directory(target);
    fs::create_symlink(target, folder.path() / ".ondel-analyzer-link");
    std::ofstream(folder.path() / ".ondel-analyzer-file").put('x');
    BenchmarkEngine::cleanupOrphans(folder.path());
    EXPECT_EQ(test::entriesIn(folder.path()), 2U);
    EXPECT_TRUE(fs::remove(bystander) && fs::remove(target));
    BenchmarkEngine::cleanupOrphans(folder.path() / "missing");
}

TEST_F(Failure, ASweepLeavesAFolderInUseAlone) {
    std::size_t inUse = 0;
    system.onProgress = [&](const auto&) {
        BenchmarkEngine::cleanupOrphans(folder.path());
        inUse = BenchmarkEngine::cleanupOrphans(folder.path(), std::chrono::milliseconds(0));
    };
    EXPECT_EQ(system.failureOf(smallPlan(everyTest, BenchmarkSize::fixed(65536)), folder.path()), "");
    EXPECT_EQ(inUse, 1U);

    const fs::path left = folder.path() / ".ondel-analyzer-OLD";
    fs::create_directory(left);
    {
        const auto held = OndelCore::platform::openFolder(left);
        ASSERT_EQ(flock(held.get(), LOCK_EX), 0);
        BenchmarkEngine::cleanupOrphans(folder.path());
        EXPECT_TRUE(fs::exists(left));
    }
    EXPECT_EQ(BenchmarkEngine::cleanupOrphans(folder.path(), std::chrono::milliseconds(0)), 0U);
}

TEST_F(Failure, ASweepBesideTheStartOfARunDoesNoHarm) {
    const test::TemporaryFolder busy(test::inMemory());
    std::atomic<bool> isOver = false;
    std::thread sweeper([&] {
        while (!isOver)
            BenchmarkEngine::cleanupOrphans(busy.path());
    });
    std::set<std::string> failures;
    for (int run = 0; run < 100; ++run)
        failures.insert(system.failureOf(smallPlan({fileOps}, BenchmarkSize::fixed(0)), busy.path()));
    isOver = true;
    sweeper.join();
    EXPECT_EQ(failures, std::set<std::string>{""});
}

TEST_F(Failure, AFailedFlushIsPartOfTheResult) {
    const std::error_code lost(EIO, std::generic_category()), quota(EDQUOT, std::generic_category());
    system.flushToMedium = [&, calls = 0](int) mutable { return calls++ == 0 ? quota : lost; };
    const auto plan = smallPlan({sequentialWrite, randomWrite}, BenchmarkSize::fixed(8192));
    const BenchmarkResult result = system.run(plan, folder.path());
    EXPECT_EQ(result.sequentialWrite->bytesProcessed, 8192);
    EXPECT_EQ(result.flushFailures(),
              (std::vector<FlushFailure>{{sequentialWrite, quota}, {randomWrite, lost}}));
    EXPECT_EQ(
        system.run(smallPlan({sequentialRead}, BenchmarkSize::fixed(8192)), folder.path()).flushFailures(),
        (std::vector<FlushFailure>{{std::nullopt, lost}}));
    system.flushToMedium = OndelCore::platform::flushToMedium;
    EXPECT_TRUE(system.run(plan, folder.path()).flushFailures().empty());
    EXPECT_EQ(OndelCore::platform::flushToMedium(-1).value(), EBADF);
}

TEST_F(Failure, NothingIsAllocatedWhileMeasuring) {
    std::vector<std::size_t> counted;
    counted.reserve(10000);
    const auto count = [&counted](auto transfer) {
        return [&counted, transfer](auto... arguments) {
            counted.push_back(allocations);
            return transfer(arguments...);
        };
    };
    EngineEnvironment quiet;
    quiet.freeBytes = [](const auto&) { return std::int64_t{1} << 40; };
    auto plan = smallPlan({}, BenchmarkSize::fixed(512 * 4096));
    plan.randomOpCount = 2000;
    plan.sampleInterval = 1e9;
    plan.bypassCache = true;
    quiet.write = count(quiet.write);
    quiet.read = count(quiet.read);
    quiet.pread = count(quiet.pread);
    quiet.pwrite = count(quiet.pwrite);
    for (const BenchmarkTest test : {sequentialWrite, sequentialRead, randomRead, randomWrite}) {
        plan.tests = {test};
        counted.clear();
        runInFolder(quiet, plan, folder.path(), system.flag, [](const auto&) {});
        if (test != sequentialWrite)
            counted.erase(counted.begin(), counted.begin() + 512); // the preparation
        ASSERT_GE(counted.size(), 512U);
        EXPECT_EQ(counted.front(), counted.back()) << rawValue(test);
    }
}

} // namespace

// Every form that the library may mix, so that memory from one of them never reaches another allocator. Never
// inlined: GCC 14 would see free() on what operator new gave, and warn.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    ++allocations;
    return std::malloc(size);
}
void* operator new(std::size_t size) {
    if (void* memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
