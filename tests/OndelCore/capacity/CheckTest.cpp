#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/capacity/BlockPattern.h"
#include "OndelCore/capacity/CheckRunner.h"
#include "OndelCore/capacity/StandstillClock.h"
#include "support/Program.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace OndelCore::capacity {
namespace {

constexpr std::int64_t mebibyte = 1048576;

/// "zeros 4096+8192" and the like, then what else is remarkable.
std::string saidOf(const CapacityResult& result) {
    std::string said;
    for (const CapacityDefect& defect : result.defects) {
        said += (said.empty() ? "" : ", ") + std::string(rawValue(defect.kind)) + ' ' +
                std::to_string(defect.offset) + '+' + std::to_string(defect.length);
        if (defect.holds)
            said += (defect.repeats ? " repeats " : " holds ") + std::to_string(*defect.holds);
        if (defect.flippedBits > 0)
            said += " bits " + std::to_string(defect.flippedBits);
        if (defect.isOnlyLater)
            said += " later";
    }
    if (result.earlyEnd)
        said += "; " + std::string(rawValue(*result.earlyEnd)) + " after " + std::to_string(result.written);
    if (result.realSize)
        said += "; " + std::string(rawValue(result.realSize->reason));
    if (result.write.flushError)
        said += "; not flushed";
    EXPECT_EQ(result.verified + result.wrong + result.unreadable, result.written);
    EXPECT_EQ(result.isProof(), said.empty() && !result.quick);
    EXPECT_EQ(result.hasDefects(), !result.defects.empty());
    return said;
}

struct Bent : CheckEnvironment {
    Bent() {
        // What else the test's machine does is no evidence here.
        diskWitness = [](int) { return nullptr; };
        volumeWitness = [](int) { return nullptr; };
        freeBytes = [](int) { return std::int64_t{1} << 40; };
        fileExtents = [](int, std::size_t) { return std::vector<platform::FileExtent>(); };
    }
    /// Changes what comes back: `change` gets the block and its offset in the file.
    void bendBlocks(const std::function<void(char* block, std::int64_t offset)>& change) {
        pread = [change](int file, void* bytes, std::size_t size, off_t offset) {
            const ssize_t moved = ::pread(file, bytes, size, offset);
            for (ssize_t at = 0; at < moved; at += blockBytes)
                change(static_cast<char*>(bytes) + at, offset + at);
            return moved;
        };
    }
    /// Transfers that touch the block at `place` fail with `error` as long as `times` lasts.
    template <class Call>
    static auto failing(Call call, std::int64_t place, int error, int times = 1000000) {
        return [=, left = std::make_shared<int>(times)](int file, auto bytes, std::size_t size,
                                                        off_t offset) {
            if (place < offset + static_cast<off_t>(size) && place + blockBytes > offset && (*left)-- > 0) {
                errno = error;
                return ssize_t{-1};
            }
            return call(file, bytes, size, offset);
        };
    }
    /// From `limit` on writing fails.
    void endWritingAt(std::int64_t limit, int error) {
        pwrite = [limit, error](int file, const void* bytes, std::size_t size, off_t offset) {
            const auto room = static_cast<std::size_t>(std::max<std::int64_t>(0, limit - offset));
            if (room == 0) {
                errno = error;
                return ssize_t{-1};
            }
            return ::pwrite(file, bytes, std::min(size, room), offset);
        };
    }
};

struct Case {
    const char* name;
    std::function<void(Bent&)> bend;
    const char* said;
};

class Check : public testing::TestWithParam<Case> {};

TEST_P(Check, saysWhatIsWrong) {
    const test::TemporaryFolder folder;
    Bent system;
    GetParam().bend(system);
    std::string said;
    try {
        const auto result =
            runCheck(system, {.folder = folder.path(), .size = 8 * mebibyte}, {}, [](auto&) {});
        said = saidOf(result);
    } catch (const benchmark::BenchmarkError& error) {
        said = std::string("fails: ") + error.what();
    }
    EXPECT_EQ(said, GetParam().said);
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

void copyBlock(char* block, std::int64_t from, int file) {
    EXPECT_EQ(::pread(file, block, static_cast<std::size_t>(blockBytes), from), blockBytes);
}

/// Reading `place` brings what belongs to another place.
auto readingFrom(const std::function<std::int64_t(std::int64_t)>& source) {
    return [source](int file, void* bytes, std::size_t size, off_t offset) {
        const ssize_t moved = ::pread(file, bytes, size, offset);
        for (ssize_t at = 0; at < moved; at += blockBytes)
            if (const std::int64_t other = source(offset + at); other != offset + at)
                copyBlock(static_cast<char*>(bytes) + at, other, file);
        return moved;
    };
}

INSTANTIATE_TEST_SUITE_P(
    All, Check,
    testing::Values(
        Case{"nothing", [](Bent&) {}, ""}, //
        Case{"manyFiles", [](Bent& bent) { bent.fileBytes = mebibyte + 3 * blockBytes; }, ""},
        Case{"shortTransfers",
             [](Bent& bent) {
                 bent.pwrite = [](int file, const void* bytes, std::size_t size, off_t offset) {
                     return ::pwrite(file, bytes, std::min<std::size_t>(size, 5 * 4096 + 100), offset);
                 };
                 bent.pread = [](int file, void* bytes, std::size_t size, off_t offset) {
                     return ::pread(file, bytes, std::min<std::size_t>(size, 7 * 4096), offset);
                 };
             },
             ""},
        Case{"zeros",
             [](Bent& bent) {
                 bent.bendBlocks([](char* block, std::int64_t at) {
                     if (at >= 3 * mebibyte - blockBytes && at < 3 * mebibyte + blockBytes)
                         std::memset(block, 0, blockBytes);
                 });
             },
             "zeros 3141632+8192"},
        Case{"bits",
             [](Bent& bent) {
                 bent.bendBlocks([](char* block, std::int64_t at) {
                     if (at == 0 || at == blockBytes || at == 8 * mebibyte - blockBytes)
                         block[77] = static_cast<char>(block[77] ^ 5);
                 });
             },
             "bitFlips 0+8192 bits 4, bitFlips 8384512+4096 bits 2"},
        Case{"swapped",
             [](Bent& bent) {
                 bent.pread = readingFrom([](std::int64_t at) -> std::int64_t {
                     return at == 8192 ? 5242880 : at == 5242880 ? 8192 : at;
                 });
             },
             "otherBlock 8192+4096 holds 5242880, otherBlock 5242880+4096 holds 8192"},
        Case{"wrapsAround",
             [](Bent& bent) {
                 bent.pread = readingFrom([](std::int64_t at) { return at % (2 * mebibyte) + 6 * mebibyte; });
             },
             "otherBlock 0+2097152 holds 6291456, otherBlock 2097152+2097152 holds 6291456, "
             "otherBlock 4194304+2097152 holds 6291456; wrapsAround"},
        Case{"dropsAndRepeatsTheLast",
             [](Bent& bent) {
                 bent.pread =
                     readingFrom([](std::int64_t at) { return std::min(at, 3 * mebibyte - blockBytes); });
             },
             "otherBlock 3145728+5242880 repeats 3141632; dropsBeyond"},
        Case{"dropsAndIsNoisy",
             [](Bent& bent) {
                 bent.bendBlocks([](char* block, std::int64_t at) {
                     if (at >= mebibyte)
                         std::memset(block, static_cast<int>(at / blockBytes) | 1, blockBytes);
                 });
             },
             "foreign 1048576+7340032; dropsBeyond"},
        Case{"unreadableBlock", [](Bent& bent) { bent.pread = Bent::failing(::pread, 2 * mebibyte, EIO); },
             "unreadable 2097152+4096"},
        Case{"readAtTheSecondAttempt",
             [](Bent& bent) { bent.pread = Bent::failing(::pread, 2 * mebibyte, EIO, 1); },
             "recovered 2097152+1048576"},
        Case{"readWhenThereWasMemoryAgain",
             [](Bent& bent) { bent.pread = Bent::failing(::pread, 2 * mebibyte, ENOMEM, 1); }, ""},
        Case{"unwritableBlock",
             [](Bent& bent) { bent.pwrite = Bent::failing(::pwrite, 3 * mebibyte - blockBytes, EIO); },
             "writeFailed 3141632+4096"},
        Case{"writtenAtTheSecondAttempt",
             [](Bent& bent) { bent.pwrite = Bent::failing(::pwrite, mebibyte, EIO, 1); },
             "recovered 1048576+1048576"},
        Case{"full", [](Bent& bent) { bent.endWritingAt(5 * mebibyte + 100, ENOSPC); },
             "; full after 5242880"},
        Case{"quota", [](Bent& bent) { bent.endWritingAt(mebibyte, EDQUOT); }, "; quota after 1048576"},
        Case{"readOnlyMeanwhile", [](Bent& bent) { bent.endWritingAt(mebibyte, EROFS); },
             "; writeErrors after 1048576"},
        Case{"limitOfFiles", [](Bent& bent) { bent.endWritingAt(mebibyte + 500, EFBIG); }, ""},
        Case{"fullFromTheStart", [](Bent& bent) { bent.endWritingAt(0, ENOSPC); },
             "fails: write: No space left on device"},
        Case{"goneWhileWriting", [](Bent& bent) { bent.pwrite = Bent::failing(::pwrite, mebibyte, ENODEV); },
             "fails: write: No such device"},
        Case{"goneWhileReading",
             [](Bent& bent) { bent.pread = Bent::failing(::pread, 3 * mebibyte, ENOTCONN); },
             "fails: read: Transport endpoint is not connected"},
        Case{"nothingAnswersAnyMore",
             [](Bent& bent) {
                 bent.endWritingAt(3 * mebibyte, EIO);
                 bent.pread = [](int, void*, std::size_t, off_t) { return errno = EIO, ssize_t{-1}; };
             },
             "fails: write: Input/output error"},
        Case{"nothingCanBeReadBack",
             [](Bent& bent) {
                 bent.pread = [](int, void*, std::size_t, off_t) { return errno = EIO, ssize_t{-1}; };
             },
             "fails: read: Input/output error"},
        Case{"noRoomAtTheFlush",
             [](Bent& bent) {
                 bent.fileBytes = 4 * mebibyte;
                 bent.flushToMedium = [count = 0](int) mutable {
                     return ++count == 2 ? std::error_code(EDQUOT, std::generic_category())
                                         : std::error_code();
                 };
             },
             "; quota after 4194304; not flushed"}),
    [](const auto& entry) { return std::string(entry.param.name); });

/// What a check of all free space says, where `free` tells what is free at each question.
std::string saidOfFilling(const std::function<std::int64_t(int question)>& free, std::int64_t leaveFree = 0) {
    const test::TemporaryFolder folder;
    Bent system;
    system.freeBytes = [free, question = 0](int) mutable { return free(question++); };
    try {
        const auto result =
            runCheck(system, {.folder = folder.path(), .leaveFree = leaveFree}, {}, [](auto&) {});
        EXPECT_EQ(result.verified, result.written);
        return std::to_string(result.written / mebibyte) + " of " +
               std::to_string(result.planned / mebibyte) + (result.earlyEnd ? " early" : "");
    } catch (const benchmark::BenchmarkError& error) {
        return error.what();
    }
}

TEST(CapacityCheck, fillsWhatIsFreeButForTheReserve) {
    const auto always = [](std::int64_t free) { return [free](int) { return free; }; };
    EXPECT_EQ(saidOfFilling(always(12 * mebibyte + 5000)), "12 of 12");
    EXPECT_EQ(saidOfFilling(always(12 * mebibyte), 8 * mebibyte), "4 of 4");
    EXPECT_EQ(saidOfFilling(always(4 * mebibyte), 4 * mebibyte),
              "insufficient space: 4198400 bytes needed, 4194304 available");
    // Asked first for the plan, then at every eighth mebibyte.
    const auto others = [](int question) { return question < 3 ? 64 * mebibyte : mebibyte; };
    EXPECT_EQ(saidOfFilling(others, 2 * mebibyte), "16 of 62 early");
    const auto tables = [](int question) { return question < 9 ? 64 * mebibyte : mebibyte; };
    EXPECT_EQ(saidOfFilling(tables, 0), "64 of 64");
}

TEST(CapacityCheck, findsWhatIsLostLater) {
    const test::TemporaryFolder folder;
    Bent system;
    auto isLater = std::make_shared<bool>(false);
    system.bendBlocks([isLater](char* block, std::int64_t at) {
        if (at == 0 || (*isLater && at == mebibyte))
            std::memset(block, 0, blockBytes);
    });
    std::string phases;
    const auto result =
        runCheck(system, {.folder = folder.path(), .size = 2 * mebibyte, .again = std::chrono::seconds(1)},
                 {}, [&](const CapacityProgress& now) {
                     *isLater |= now.phase == CapacityPhase::waiting;
                     const std::string phase(rawValue(now.phase));
                     phases += phases.ends_with(phase) ? "" : " " + phase;
                 });
    EXPECT_EQ(phases, " writing reading waiting readingAgain");
    EXPECT_EQ(saidOf(result), "zeros 0+4096, zeros 1048576+4096 later");
    EXPECT_EQ(result.readAgain.value().bytes, 2 * mebibyte);
    EXPECT_EQ(std::ranges::count(result.cells.states, BlockState::wrong), 2);
    EXPECT_EQ(std::ranges::count(result.cells.states, BlockState::verified), 510);
}

TEST(CapacityCheck, quicklyChecksWhereSamplesCanBeSpread) {
    const test::TemporaryFolder folder;
    Bent system;
    system.fileBytes = 64 * mebibyte;
    int reserved = 0;
    system.reserveSpace = [&reserved](int, std::int64_t) { return ++reserved <= 8; };
    const CapacityPlan plan{.folder = folder.path(), .size = 512 * mebibyte, .isQuick = true};
    const auto spread = runCheck(system, plan, {}, [](auto&) {});
    EXPECT_EQ(saidOf(spread), "");
    EXPECT_TRUE(spread.quick.value().isSpread);
    EXPECT_EQ(spread.quick->reserved, 512 * mebibyte);
    EXPECT_LT(spread.written, 16 * mebibyte);
    EXPECT_FALSE(spread.isProof());

    system.freeBytes = [](int) { return 512 * mebibyte; };
    reserved = 0;
    const auto all =
        runCheck(system, {.folder = folder.path(), .leaveFree = 0, .isQuick = true}, {}, [](auto&) {});
    EXPECT_EQ(all.planned, 504 * mebibyte) << "a file system without any room is slow";

    reserved = 4;
    system.freeBytes = Bent().freeBytes;
    system.reserveSpace = [&reserved](int, std::int64_t) { return errno = EUCLEAN, ++reserved <= 8; };
    EXPECT_EQ(saidOf(runCheck(system, plan, {}, [](auto&) {})),
              "writeFailed 268435456+4096; writeErrors after 5525504");

    system.reserveSpace = [](int, std::int64_t) { return errno = EOPNOTSUPP, false; };
    const auto packed = runCheck(system, plan, {}, [](auto&) {});
    EXPECT_FALSE(packed.quick.value().isSpread);
    EXPECT_EQ(packed.written, 64 * mebibyte);

    system.spreadsSparseFiles = [](int) { return true; };
    const auto sparse = runCheck(system, plan, {}, [](auto&) {});
    EXPECT_EQ(saidOf(sparse), "");
    EXPECT_TRUE(sparse.quick.value().isSpread);
    EXPECT_EQ(sparse.written, spread.written);
}

TEST(CapacityCheck, stopsInEachPhaseAndRemovesItsFolder) {
    using enum CapacityPhase;
    for (const CapacityPhase phase : {preparing, sampling, writing, reading, waiting, readingAgain}) {
        const test::TemporaryFolder folder;
        const CapacityPlan plan{.folder = folder.path(),
                                .size = 64 * mebibyte,
                                .isQuick = phase <= sampling,
                                .again = std::chrono::seconds(phase == waiting ? 3600 : 0)};
        std::stop_source stop;
        const auto run = [&] {
            runCheck(Bent(), plan, stop.get_token(), [&](const CapacityProgress& now) {
                if (now.phase == phase)
                    stop.request_stop();
            });
        };
        EXPECT_THROW(run(), benchmark::Cancelled) << rawValue(phase);
        EXPECT_TRUE(std::filesystem::is_empty(folder.path())) << rawValue(phase);
    }
}

TEST(CapacityCheck, leavesAFolderForTheSweepWhenItIsKilled) {
    const std::vector<std::string> whole{"--again", "3600"};
    const std::vector<std::string> quick{"--quick", "--again", "3600"};
    const std::vector<std::pair<const char*, const std::vector<std::string>*>> table{
        {"writing", &whole},  {"reading", &whole}, {"waiting", &whole}, {"preparing", &quick},
        {"sampling", &quick}, {"reading", &quick}, {"waiting", &quick}};
    for (const auto& [phase, options] : table) {
        const test::TemporaryFolder folder;
        {
            std::vector<std::string> command{
                CHECK_FOLDER, folder.path().string(), "--size", "67108864", "--stay-in", phase};
            command.insert(command.end(), options->begin(), options->end());
            test::Program check(command);
            ASSERT_EQ(check.line(), std::string("phase ") + phase);
            EXPECT_EQ(benchmark::BenchmarkEngine::cleanupOrphans(folder.path(), std::chrono::milliseconds(0)),
                      1U)
                << "a folder in use was swept";
        }
        EXPECT_FALSE(std::filesystem::is_empty(folder.path())) << phase;
        EXPECT_EQ(benchmark::BenchmarkEngine::cleanupOrphans(folder.path(), std::chrono::seconds(10)), 0U);
        EXPECT_TRUE(std::filesystem::is_empty(folder.path())) << phase;
    }
}

TEST(StandstillClock, takesOffTheTimeInWhichTheProcessStoodStill) {
    constexpr std::int64_t second = 1'000'000'000;
    std::atomic<std::int64_t> time = 0;
    const std::function<std::int64_t()> now = [&time] { return time.load(); };
    StandstillClock clock(now);
    // Nothing counts as a standstill until the thread runs that would notice it.
    std::int64_t before = clock.now();
    bool isBeating = false;
    for (int i = 0; i < 3000 && !isBeating; ++i) {
        time += 60 * second;
        const std::int64_t after = clock.now();
        isBeating = after - before < second;
        EXPECT_GE(after, before);
        before = after;
        std::this_thread::sleep_for(std::chrono::milliseconds(isBeating ? 0 : 10));
    }
    ASSERT_TRUE(isBeating);
    for (int i = 0; i < 100; ++i) {
        time += second / 2;
        EXPECT_EQ(clock.now() - before, second / 2);
        before += second / 2;
    }
}

} // namespace
} // namespace OndelCore::capacity
