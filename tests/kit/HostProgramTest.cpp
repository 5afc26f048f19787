// What the public headers promise a host program that calls from several threads, runs twice at once, plans
// nonsense, has no event loop and a locale with a decimal comma, and is gone before its runs end.

#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/benchmark/BenchmarkTarget.h"
#include "OndelCore/benchmark/SpeedScale.h"
#include "OndelCore/health/DiskHealth.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/volumes/FileUrl.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeAccess.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/SampleRun.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/RunExport.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"
#include "support/Program.h"
#include "support/TemporaryFolder.h"

#include <QFuture>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <latch>
#include <limits>
#include <locale>
#include <memory>
#include <mutex>
#include <set>
#include <stop_token>
#include <string>
#include <thread>
#include <tuple>
#include <utility>
#include <vector>

using namespace OndelCore::benchmark;
using namespace TarnwickKit::model;
using enum BenchmarkTest;
namespace fs = std::filesystem;

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto most = std::numeric_limits<std::int64_t>::max();

/// A folder that a program which dies in a test shares with the one that looks at what it left.
struct HostProgram : testing::Test {
    ~HostProgram() override {
        EXPECT_TRUE(fs::is_empty(folder));
        if (folder == own.path())
            unsetenv(variable);
    }
    static constexpr const char* variable = "ONDEL_TEST_FOLDER";
    const test::TemporaryFolder own;
    const fs::path folder = (setenv(variable, own.path().c_str(), 0), std::getenv(variable));
};

BenchmarkPlan planOf(std::int64_t bytes) {
    return {.size = BenchmarkSize::fixed(bytes), .randomOpCount = 30, .fileOpCount = 20, .sampleInterval = 0};
}

/// "" for a run that gave what it was asked for.
std::string endOf(const auto& run) {
    try {
        run();
        return {};
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

OndelCore::health::OndelSMART smallHealth() {
    OndelCore::health::OndelSMART record;
    record.available = record.has_power_on_hours = record.has_data_read = record.has_power_cycles = 1;
    record.power_on_hours = 43210;
    record.data_read_tb = 1234.5;
    record.power_cycles = 1234567;
    return record;
}

/// Everything with figures in it, for people, files and logs.
std::vector<std::string> textsOf(const RunRecord& run, const fs::path& folder) {
    std::vector<std::string> texts{
        BenchmarkError(BenchmarkError::InsufficientSpace{1234567, 2345678}).what(),
        OndelCore::volumes::fileUrl(folder),
        SpeedScale::standard().verdict(1234567890.5).value_or(""),
        exported({run}, ExportForm::text).toStdString(),
        exported({run}, ExportForm::markdown).toStdString(),
        exported({run}, ExportForm::csv).toStdString(),
        exported({run}, ExportForm::json).toStdString(),
        Format::runStamp(run.date, run.duration).toStdString(),
        TarnwickReport{run}.remarks().join('\n').toStdString(),
    };
    for (const auto& row : OndelCore::health::DiskHealth::smart(smallHealth()).attributes)
        texts.push_back(row.label + " " + row.value);
    std::string line;
    OndelCore::logging::LogField::ms("took", 1234.5678).appendTo(line);
    OndelCore::logging::LogField::bytes("size", 1234567).appendTo(line);
    texts.push_back(line);
    return texts;
}

/// What says "Threads: any", asked by several of them at once. The first case of all: nothing was asked
/// before.
TEST_F(HostProgram, MayAskFromEveryThread) {
    using namespace OndelCore::volumes;
    const test::TemporaryFolder place;
    const RunRecord run = fullRun(20);
    const std::function<std::string()> questions[]{
        [] {
            std::string names;
            for (const MountedVolume& volume : mountedVolumes())
                if (!test::isOfATest(volume.url)) // those come and go meanwhile
                    names += volume.url.string() + "\n";
            return names;
        },
        [&] { return VolumeInfo::load(Location::local(place.path())).value().format.toStdString(); },
        [&] { return VolumeCapabilities::probe(place.path()).value().filesystemType.toStdString(); },
        [&] { return std::string(VolumeAccess::isWritable(place.path()) ? "writable" : "no"); },
        [&] { return BenchmarkTarget::folder(place.path(), place.path()).string(); },
        [&] {
            const auto health = OndelCore::health::DiskHealth::read(place.path());
            return health ? health->kind : "no device";
        },
        [&] { return textsOf(run, place.path()).at(7); },
        [&] { return TarnwickReport{run}.handoffFile().value().string(); },
        [&] { return std::to_string(RunRecord::from({}, {}, {}, run.date, {}).duration); },
        [] {
            OndelCore::logging::Log::app.notice("asked");
            return std::string(BenchmarkSize::presets().back().label);
        },
    };
    constexpr std::size_t count = 2 * std::size(questions);
    std::array<std::string, count> answers;
    {
        std::latch allReady(count);
        std::vector<std::jthread> threads;
        for (std::size_t thread = 0; thread < count; ++thread)
            threads.emplace_back([&, thread] {
                allReady.arrive_and_wait();
                answers[thread] = questions[thread / 2]();
            });
    }
    for (std::size_t thread = 0; thread < count; ++thread)
        EXPECT_EQ(answers[thread], questions[thread / 2]()) << "question " << thread / 2;
}

TEST_F(HostProgram, KeepsRunsAtOnceApart) {
    const BenchmarkEngine shared;
    constexpr int runs = 8;
    std::latch allReady(runs);
    const auto measure = [&](int number) {
        const BenchmarkEngine another;
        const BenchmarkEngine& engine = number % 2 == 0 ? shared : another;
        const fs::path place = number < runs / 2 ? folder : folder / std::to_string(number);
        fs::create_directory(place);
        const std::int64_t bytes = (number + 1) * std::int64_t{1048576};
        std::vector<BenchmarkProgress> heard;
        allReady.arrive_and_wait();
        const BenchmarkResult result =
            engine.measure(planOf(bytes), place, [&](const auto& now) { heard.push_back(now); });
        EXPECT_EQ(result.sequentialWrite->bytesProcessed, bytes);
        EXPECT_EQ(result.sequentialRead->bytesProcessed, bytes);
        EXPECT_EQ(result.randomRead->operations + result.randomWrite->operations, 60);
        EXPECT_EQ(result.fileOps->remove.operations, 20);
        EXPECT_EQ(std::ranges::count_if(
                      heard,
                      [&](const auto& now) { return now.test <= sequentialRead && now.totalBytes != bytes; }),
                  0)
            << "hears another run";
        EXPECT_FALSE(heard.empty());
        EXPECT_TRUE(place == folder || fs::remove(place));
    };
    std::vector<std::jthread> threads;
    for (int number = 0; number < runs; ++number)
        threads.emplace_back([&, number] { EXPECT_EQ(endOf([&] { measure(number); }), "") << number; });
}

/// Without an event loop: futures are waited for on threads of the standard library, two on each.
TEST_F(HostProgram, EndsOnlyTheRunsThatWereGivenTheStop) {
    auto endless = planOf(1048576);
    endless.randomOpCount = most;
    const BenchmarkEngine engine;
    std::stop_source stop;
    std::latch bothBegun(2);
    std::vector<QFuture<BenchmarkResult>> stopped;
    for (int run = 0; run < 2; ++run)
        stopped.push_back(engine.run(
            endless, folder,
            [&, isFirst = true](const auto& now) mutable {
                if (now.test == randomRead && std::exchange(isFirst, false))
                    bothBegun.count_down();
            },
            stop.get_token()));
    bothBegun.wait();
    const auto goesOn = engine.run(planOf(8388608), folder, {}, std::stop_source().get_token());
    std::mutex lock;
    std::multiset<std::string> ends;
    {
        std::vector<std::jthread> threads;
        for (int round = 0; round < 2; ++round)
            for (const auto& future : {stopped[0], stopped[1], goesOn})
                threads.emplace_back([&, future] {
                    stop.request_stop();
                    const std::string end = endOf([&] { (void)QFuture(future).result(); });
                    const std::scoped_lock guard(lock);
                    ends.insert(end);
                });
    }
    EXPECT_EQ(ends, (std::multiset<std::string>{"", "", "cancelled", "cancelled", "cancelled", "cancelled"}));
}

TEST_F(HostProgram, GetsAnErrorOrAResultForAnAbsurdPlan) {
    const std::string noSpace = "insufficient space", noMemory = "memory: Cannot allocate memory";
    const struct {
        const char* what;
        std::function<void(BenchmarkPlan&)> change;
        std::string end; ///< how the message begins
    } plans[]{
        {"blocks below nothing",
         [](auto& plan) { plan.writeBlockSize = plan.readBlockSize = plan.randomBlockSize = least; }, ""},
        {"no number between samples", [](auto& plan) { plan.sampleInterval = std::nan(""); }, ""},
        {"samples before the last", [](auto& plan) { plan.sampleInterval = -HUGE_VAL; }, ""},
        {"never a sample", [](auto& plan) { plan.sampleInterval = HUGE_VAL; }, ""},
        {"no such test", [](auto& plan) { plan.tests = {BenchmarkTest{99}, BenchmarkTest{-1}}; }, ""},
        {"a file below nothing", [](auto& plan) { plan.size = BenchmarkSize::fixed(least); },
         "file too small"},
        {"the largest file", [](auto& plan) { plan.size = BenchmarkSize::fixed(most); }, noSpace},
        {"the largest reserve", [](auto& plan) { plan.size = BenchmarkSize::fillDisk(most); }, noSpace},
        {"the largest block to write", [](auto& plan) { plan.writeBlockSize = most; }, noMemory},
        {"the largest block to read", [](auto& plan) { plan.readBlockSize = most; }, noMemory},
        {"the largest random block", [](auto& plan) { plan.randomBlockSize = most; }, "file too small"},
        {"the most files", [](auto& plan) { plan.fileOpCount = most; }, noMemory},
    };
    for (const auto& [what, change, end] : plans) {
        BenchmarkPlan plan = planOf(1048576);
        change(plan);
        const std::string told = endOf([&] { BenchmarkEngine().measure(plan, folder); });
        EXPECT_TRUE(end.empty() ? told.empty() : told.starts_with(end)) << what << ": " << told;
    }
    const test::TemporaryFolder elsewhere;
    for (const fs::path& place : {fs::path(), elsewhere.path() / "missing", fs::path("/dev/null"),
                                  fs::path(std::string(5000, 'x')), fs::path("/proc")})
        EXPECT_EQ(endOf([&] { BenchmarkEngine().measure(planOf(4096), place); }), "not writable") << place;
}

/// Puts a comma into both locales of the process, and takes it out again.
class Commas {
public:
    /// `folder`: where the C library's locale is made. Its name is not that of one on the machine.
    explicit Commas(const fs::path& folder) {
        struct Marks : std::numpunct<char> {
            char do_decimal_point() const override { return ','; }
            char do_thousands_sep() const override { return '.'; }
            std::string do_grouping() const override { return "\3"; }
        };
        const bool isMade =
            test::Program({"localedef", "-i", "de_DE", "-f", "UTF-8", (folder / "comma").string()})
                .succeeds();
        setenv("LOCPATH", folder.c_str(), 1);
        m_isSet = isMade && setlocale(LC_ALL, "comma");
        std::locale::global(std::locale(std::locale::classic(), new Marks));
    }
    ~Commas() {
        std::locale::global(m_before);
        setlocale(LC_ALL, "C.UTF-8");
        unsetenv("LOCPATH");
    }
    bool areSet() const { return m_isSet; }

private:
    std::locale m_before;
    bool m_isSet = false;
};

TEST_F(HostProgram, IsToldTheSameInALocaleOfCommas) {
    const test::TemporaryFolder place;
    const RunRecord run = fullRun(90);
    const auto texts = textsOf(run, place.path());
    const auto before = BenchmarkEngine().measure(planOf(1048576), folder);
    const auto file = TarnwickReport{run}.handoffFile();
    ASSERT_TRUE(file);
    const Commas commas(place.path());
    if (!commas.areSet())
        GTEST_SKIP() << "localedef cannot make a locale here";
    ASSERT_EQ(std::strtod("0,5", nullptr), 0.5);

    EXPECT_EQ(textsOf(run, place.path()), texts);
    EXPECT_EQ(ImportedRuns::from({*file}).last, run);
    EXPECT_EQ(TarnwickReport{run}.handoffFile(), file);
    EXPECT_EQ(ImportedRuns::from({*file}).last, run) << "as written under the comma";
    const auto after = BenchmarkEngine().measure(planOf(1048576), folder);
    EXPECT_EQ(after.sequentialRead->evidence.diskReads.has_value(),
              before.sequentialRead->evidence.diskReads.has_value());
    EXPECT_EQ(after.sequentialRead->evidence.threadReads, before.sequentialRead->evidence.threadReads);
    const auto &was = before.circumstances.value(), &is = after.circumstances.value();
    EXPECT_EQ(
        std::tie(is.memoryBytes, is.capacityBytes, is.disks, is.misalignment, is.link, is.maxCelsius),
        std::tie(was.memoryBytes, was.capacityBytes, was.disks, was.misalignment, was.link, was.maxCelsius));
}

TEST_F(HostProgram, MayForgetItsRun) {
    std::atomic<bool> isComplete = false;
    std::weak_ptr<int> known;
    {
        const auto held = std::make_shared<int>();
        known = held;
        const std::stop_source stop;
        (void)BenchmarkEngine().run(
            planOf(4194304), folder,
            [&isComplete, held](const auto& now) {
                isComplete = now.test == fileOps && now.completedBytes == now.totalBytes;
            },
            stop.get_token());
    }
    while (!known.expired()) // the run holds what it was given until everything else of it is gone
        std::this_thread::yield();
    EXPECT_TRUE(isComplete);
}

TEST_F(HostProgram, MayEndDuringARun) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endIn = [this](BenchmarkTest test) {
        std::latch begun(1);
        const auto run =
            BenchmarkEngine().run(planOf(16777216), folder, [&, isFirst = true](const auto& now) mutable {
                if (now.test == test && std::exchange(isFirst, false))
                    begun.count_down();
            });
        begun.wait();
        std::exit(7);
    };
    for (const BenchmarkTest test : allBenchmarkTests) {
        EXPECT_EXIT(endIn(test), testing::ExitedWithCode(7), "^$") << rawValue(test);
        EXPECT_EQ(BenchmarkEngine::cleanupOrphans(folder, std::chrono::milliseconds(0)), 0U);
        EXPECT_TRUE(fs::is_empty(folder));
    }
}

} // namespace
