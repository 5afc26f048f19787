// What a run's evidence gives reason to remark, and what not.

#include "OndelCore/benchmark/evidence/Remark.h"

#include "OndelCore/benchmark/evidence/RateCurve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <random>
#include <sstream>
#include <string>

using namespace OndelCore::benchmark;
using namespace OndelCore::platform;

namespace {

constexpr std::int64_t MiB = 1048576;
constexpr std::int64_t GiB = 1024 * MiB;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
const std::error_code ioError(5, std::generic_category());

/// Samples ten times a second of the rate that `rate` gives for each time.
std::vector<ThroughputSample> curve(double seconds, const std::function<double(double)>& rate) {
    std::vector<ThroughputSample> samples;
    for (int i = 1; i <= std::lround(seconds * 10); ++i)
        samples.push_back({i * 0.1, rate((i - 0.5) * 0.1)});
    return samples;
}

/// Evidence of a test that moved its bytes to or from the disk, with a little of metadata beside them.
TestEvidence evidenceOf(std::int64_t moved, bool writes, double began) {
    TestEvidence evidence{.began = began, .ended = began + 20, .longestPause = 0.01};
    const Traffic own{moved + moved / 1000 + 8192, 1000};
    const Traffic other{4 * MiB, 100};
    evidence.diskReads = writes ? other : own;
    evidence.diskWrites = writes ? own : other;
    evidence.threadReads = writes ? 0 : moved;
    evidence.threadWrites = writes ? moved : 0;
    return evidence;
}

struct JudgedRun {
    BenchmarkPlan plan;
    BenchmarkResult result;

    ThroughputResult& write() { return *result.sequentialWrite; }
    ThroughputResult& read() { return *result.sequentialRead; }
    IOPSResult& randomRead() { return *result.randomRead; }
    Circumstances& volume() { return *result.circumstances; }
    std::vector<TestEvidence*> evidence() {
        return {&write().evidence, &read().evidence, &randomRead().evidence, &result.randomWrite->evidence};
    }
    void setDiskReads(std::int64_t bytes) {
        read().evidence.diskReads->bytes = randomRead().evidence.diskReads->bytes = bytes;
    }
    void setTraffic(const std::optional<Traffic>& traffic) {
        for (TestEvidence* each : evidence())
            each->diskReads = each->diskWrites = traffic;
    }
    void setThread(std::optional<std::int64_t> bytes) {
        for (TestEvidence* each : evidence())
            each->threadReads = each->threadWrites = bytes;
    }
};

/// An ordinary run on a disk of the machine.
JudgedRun ordinary() {
    JudgedRun run;
    const auto steady = curve(20, [](double) { return 2.6e8; });
    const std::int64_t random = std::int64_t{10000} * 4096;
    run.result.sequentialWrite = ThroughputResult{5 * GiB, 20, MiB, steady, {}, evidenceOf(5 * GiB, true, 1)};
    run.result.sequentialRead =
        ThroughputResult{5 * GiB, 20, MiB, steady, {}, evidenceOf(5 * GiB, false, 21)};
    run.result.randomRead = IOPSResult{10000, 20, 4096, {}, {}, evidenceOf(random, false, 41)};
    run.result.randomWrite = IOPSResult{10000, 20, 4096, {}, {}, evidenceOf(random, true, 61)};
    run.result.fileOps = FileOpsResult{};
    run.result.circumstances = Circumstances{.kernel = "6.1",
                                             .fileSystemType = "ext4",
                                             .reach = FileSystemReach::device,
                                             .allowsDirectIo = true,
                                             .disks = 1,
                                             .memoryBytes = 16 * GiB,
                                             .capacityBytes = 1000 * GiB,
                                             .freeBytes = 400 * GiB,
                                             .maxCelsius = 75};
    for (int second = 0; second < 90; ++second)
        run.volume().samples.push_back({static_cast<double>(second), 50.0, 0.9});
    return run;
}

/// "code weight test number number, ..."; numbers with three digits.
std::string told(const JudgedRun& run) {
    std::ostringstream text;
    text.precision(3);
    for (const Remark& remark : remarksOn(run.plan, run.result)) {
        EXPECT_EQ(remark.numbers.size(), numbersOf(remark.code)) << rawValue(remark.code);
        text << (text.tellp() > 0 ? ", " : "") << rawValue(remark.code) << ' ' << rawValue(remark.weight);
        if (remark.test)
            text << ' ' << rawValue(*remark.test);
        for (const double number : remark.numbers)
            text << ' ' << number;
    }
    return text.str();
}

struct Case {
    const char* name;
    std::function<void(JudgedRun&)> change;
    const char* remarks; ///< empty: none
};

void expectAll(const std::vector<Case>& cases) {
    for (const Case& each : cases) {
        JudgedRun run = ordinary();
        each.change(run);
        EXPECT_EQ(told(run), each.remarks) << each.name;
    }
}

TEST(Remarks, WhetherAFigureIsTheDisks) {
    const char* bothReads =
        "fromMemory invalid sequentialRead 0, fromMemory invalid randomRead 0, cachedBelow caution";
    expectAll({
        {"ordinary", [](auto&) {}, ""},
        {"a program's cache",
         [](auto& r) { r.volume().isServedByProgram = true, r.setThread(0), r.setDiskReads(0); }, bothReads},
        {"a program that reads the disk, while the thread reads a page of a library",
         [](auto& r) { r.volume().isServedByProgram = true, r.setThread(128 * 1024); }, ""},
        {"the same where nobody says that a program serves",
         [](auto& r) { r.result.circumstances.reset(), r.setThread(4096); }, ""},
        {"only reads, all from a cache",
         [](auto& r) {
             r.setThread(0), r.setTraffic(Traffic{0, 0});
             r.result.sequentialWrite.reset(), r.result.randomWrite.reset();
         },
         bothReads},
        {"a loop file that is cached: the transfers end there",
         [](auto& r) { r.volume().isFileOnDisk = r.volume().isCachedFileOnDisk = true, r.setDiskReads(0); },
         "fromMemory invalid sequentialRead 0, fromMemory invalid randomRead 0, cachedBelow caution, "
         "fileOnDisk note"},
        {"half from the cache while another program reads as much",
         [](auto& r) { r.read().evidence.threadReads = 2 * GiB; },
         "fromMemory invalid sequentialRead 0.4, cachedBelow caution"},
        {"half from a program's cache while another volume of the disk is read as much",
         [](auto& r) {
             r.volume().isServedByProgram = true;
             r.setThread(0);
             for (TestEvidence* each : r.evidence())
                 each->volumeReads = each->diskReads, each->volumeWrites = each->diskWrites;
             r.read().evidence.volumeReads->bytes = 2 * GiB;
         },
         "fromMemory invalid sequentialRead 0.4, cachedBelow caution"},
        {"a volume's device that does not count",
         [](auto& r) {
             for (TestEvidence* each : r.evidence())
                 each->volumeReads = each->volumeWrites = Traffic{0, 0};
         },
         ""},
        {"90 % of it at the disk", [](auto& r) { r.read().evidence.diskReads->bytes = 5 * GiB / 10 * 9 + 1; },
         ""},
        {"a write that stays in memory", [](auto& r) { r.write().evidence.diskWrites->bytes = GiB; },
         "fromMemory invalid sequentialWrite 0.2"},
        {"a compressing file system that gets something to compress",
         [](auto& r) { r.volume().compresses = true, r.read().evidence.diskReads->bytes = GiB; },
         "fromMemory invalid sequentialRead 0.2, compresses note"},
        {"disks whose counting is switched off", [](auto& r) { r.setTraffic(Traffic{0, 0}); },
         "notObservable note"},
        {"disks that do not tell", [](auto& r) { r.setTraffic({}); }, ""},
        {"counts that make no sense", [](auto& r) { r.setDiskReads(-1), r.setThread(-1); }, ""},
        {"nothing was moved", [](auto& r) { r.randomRead().operations = 0, r.read().bytesProcessed = -5; },
         ""},
        {"a flush that failed", [](auto& r) { r.write().flushError = ioError; },
         "flushFailed invalid sequentialWrite 5"},
        {"the preparation's flush", [](auto& r) { r.result.preparationFlushError = ioError; },
         "flushFailed invalid 5"},
    });
}

TEST(Remarks, WhoCaches) {
    expectAll({
        {"the file system says so", [](auto& r) { r.volume().allowsDirectIo = false; },
         "cachedBelow caution"},
        {"it does not say", [](auto& r) { r.volume().allowsDirectIo.reset(); }, ""},
        {"it refused", [](auto& r) { r.read().evidence.isBypassRefused = true; }, "cachedBelow caution"},
        {"it refused each transfer", [](auto& r) { r.randomRead().evidence.refusedTransfers = 9999; },
         "cachedBelow caution"},
        {"it refused a short last write", [](auto& r) { r.write().evidence.refusedTransfers = 1; }, ""},
        {"it was not asked", [](auto& r) { r.plan.bypassCache = false, r.volume().allowsDirectIo = false; },
         ""},
        {"the file fits into the memory and came from there",
         [](auto& r) { r.plan.bypassCache = false, r.read().evidence.diskReads->bytes = 0; },
         "fromMemory invalid sequentialRead 0, smallTest caution 5.37e+09 1.72e+10"},
        {"the file is larger than the memory",
         [](auto& r) {
             r.plan.bypassCache = false, r.volume().memoryBytes = 4 * GiB;
             r.read().evidence.diskReads->bytes = 4 * GiB;
         },
         "fromMemory invalid sequentialRead 0.8"},
        {"a file that a drive's cache may hold", [](auto& r) { r.write().bytesProcessed = 128 * MiB; },
         "smallTest note 1.34e+08 2.68e+08"},
        {"one that is just too large", [](auto& r) { r.write().bytesProcessed = 256 * MiB; }, ""},
        {"in memory, where a refusal says nothing",
         [](auto& r) {
             r.volume().reach = FileSystemReach::memory, r.volume().freeBytes = 1;
             r.read().evidence.isBypassRefused = true, r.setDiskReads(0);
         },
         "inMemory note"},
        {"over the network",
         [](auto& r) { r.volume().reach = FileSystemReach::network, r.volume().disks = 0, r.setTraffic({}); },
         "notObservable note"},
        {"through a portal, where nobody looks for a disk",
         [](auto& r) {
             r.volume().fileSystemType = "fuse.portal", r.volume().isServedByProgram = true;
             r.volume().reach.reset(), r.volume().disks = 0, r.setTraffic({});
         },
         "throughPortal caution"},
        {"file operations alone through a portal",
         [](auto& r) {
             r.volume().fileSystemType = "fuse.portal", r.volume().disks = 0;
             r.result = {.fileOps = FileOpsResult{}, .circumstances = r.volume()};
         },
         "throughPortal caution"},
        {"file operations alone",
         [](auto& r) {
             r.volume().disks = 0;
             r.result = {.fileOps = FileOpsResult{}, .circumstances = r.volume()};
         },
         ""},
    });
}

TEST(Remarks, WhatHappenedMeanwhile) {
    const auto fading = [](double t) { return t < 9 ? 1e9 : 6e8 * std::exp((9 - t) / 4); };
    const auto falling = [](double t) { return t < 8 ? 1e9 : 5e8; };
    const auto steady = [](double) { return 1e9; };
    const auto heat = [](double from, double limit, const std::function<double(double)>& rate,
                         double to = 99) {
        return [=](JudgedRun& run) {
            run.volume().maxCelsius = limit;
            for (CircumstanceSample& sample : run.volume().samples)
                sample.celsius = sample.elapsed >= from && sample.elapsed <= to ? 71 : 60;
            run.write().samples = curve(20, rate);
        };
    };
    expectAll({
        {"another program reads", [](auto& r) { r.read().evidence.diskReads->bytes += GiB; },
         "otherTraffic caution sequentialRead 1.08e+09"},
        {"another program writes during the random read",
         [](auto& r) { r.randomRead().evidence.diskWrites->bytes = 100 * MiB; },
         "otherTraffic caution randomRead 1.05e+08"},
        {"a little of it", [](auto& r) { r.read().evidence.diskWrites->bytes = 300 * MiB; }, ""},
        {"two disks", [](auto& r) { r.read().evidence.diskReads->bytes += GiB, r.volume().disks = 2; }, ""},
        {"data is written twice",
         [](auto& r) { r.write().evidence.diskWrites->bytes *= 2, r.volume().journalsData = true; },
         "journalsData note"},
        {"a program that reads ahead",
         [](auto& r) {
             r.volume().isServedByProgram = true, r.setThread(0);
             r.randomRead().evidence.diskReads->bytes *= 32;
         },
         ""},
        {"through the cache",
         [](auto& r) { r.plan.bypassCache = false, r.write().evidence.diskReads->bytes = GiB; }, ""},
        {"pauses", [](auto& r) { r.write().evidence.longPauses = 3, r.write().evidence.longestPause = 4.25; },
         "stalls caution sequentialWrite 3 4.25"},
        {"blocks that take over a second each",
         [](auto& r) {
             r.write().evidence.longPauses = 10, r.write().evidence.longestPause = 2.4;
             r.write().blockSize = 512 * MiB;
         },
         ""},
        {"hot, then slower", heat(10, 75, fading), "gotHot caution sequentialWrite 71 9 75 0.796"},
        {"hot, but far from the limit", heat(10, 85, fading), ""},
        {"hot from the start", heat(0, 75, fading), ""},
        {"hot for a moment", heat(10, 75, fading, 12), ""},
        {"hot long after it became slower", heat(17, 75, falling),
         "speedFell caution sequentialWrite 1e+09 5e+08 8e+09"},
        {"hot and as fast as before", heat(10, 75, steady), ""},
        {"the limit is a sensor's nonsense", heat(10, 65261, fading), ""},
    });
}

TEST(Remarks, WhatTheVolumeIs) {
    const auto link = [](double now, double best, double rate) {
        return [=](JudgedRun& run) {
            run.volume().link = DriveLink{DriveLink::Kind::usb, now, best};
            run.write().samples = run.read().samples = curve(20, [=](double) { return rate; });
        };
    };
    const auto freeGiB = [](std::int64_t size) {
        return [=](JudgedRun& run) { run.volume().freeBytes = size * GiB; };
    };
    expectAll({
        {"a link that limits", link(4.8e8, 5e9, 4e7), "slowLink caution 4.8e+08 5e+09 2"},
        {"a slow link and a slower drive", link(3e9, 6e9, 1.5e8), "slowLink note 3e+09 6e+09 2"},
        {"a link that is as fast as the drive", link(5e9, 5e9, 4e8), ""},
        {"a link without an end", link(5e9, std::numeric_limits<double>::infinity(), 4e8), ""},
        {"misaligned", [](auto& r) { r.volume().misalignment = Misalignment{3584, 4096}; },
         "misaligned caution 3.58e+03 4.1e+03"},
        {"aligned", [](auto& r) { r.volume().misalignment = Misalignment{4096, 4096}; }, ""},
        {"full", freeGiB(40), "nearlyFull caution 0.04"},
        {"nearly full", freeGiB(90), "nearlyFull note 0.09"},
        {"not full", freeGiB(100), ""},
        {"less than nothing free", freeGiB(-1000), ""},
        {"on battery", [](auto& r) { r.volume().isOnBattery = true; }, "powerSaving note 1"},
        {"both ways of saving power",
         [](auto& r) { r.volume().isOnBattery = r.volume().hasPowerSaveGovernor = true; },
         "powerSaving note 3"},
        {"a virtual machine", [](auto& r) { r.volume().isVirtualDisk = true; }, "virtualDisk note"},
        {"a loop file past the cache", [](auto& r) { r.volume().isFileOnDisk = true; }, "fileOnDisk note"},
        {"copies and compresses",
         [](auto& r) { r.volume().copiesOnWrite = r.volume().checksumsData = r.volume().compresses = true; },
         "compresses note, copiesOnWrite note 1"},
        {"nobody looked", [](auto& r) { r.result.circumstances.reset(); }, ""},
        {"the worst first",
         [](auto& r) {
             r.volume().isOnBattery = true, r.volume().misalignment = Misalignment{512, 4096};
             r.write().evidence.longPauses = 1, r.write().evidence.longestPause = 2;
             r.read().evidence.diskReads->bytes = 0;
         },
         "fromMemory invalid sequentialRead 0, cachedBelow caution, misaligned caution 512 4.1e+03, "
         "stalls caution sequentialWrite 1 2, powerSaving note 1"},
    });
    EXPECT_TRUE(remarksOn({}, {}).empty());
}

/// What may look like a fall and is none, over `seconds`. Units: as multiples of the usual rate.
struct Shape {
    const char* name;
    std::function<double(double t, double seconds)> rate;
};

const std::vector<Shape> steadyShapes{
    {"steady", [](double, double) { return 1.0; }},
    {"a ramp", [](double t, double all) { return 1 - 0.6 * t / all; }},
    {"a disk's zones", [](double t, double all) { return 1 - 0.1 * std::floor(6 * t / all); }},
    {"a decay", [](double t, double all) { return std::exp(-1.5 * t / all); }},
    {"one dip", [](double t, double all) { return std::abs(t - 0.6 * all) < 0.08 * all ? 0.1 : 1.0; }},
    {"a slow start", [](double t, double all) { return t < 0.3 * all ? 0.2 : 1.0; }},
    {"a slow end", [](double t, double all) { return t > 0.85 * all ? 0.2 : 1.0; }},
    {"a shallow step", [](double t, double all) { return t > 0.5 * all ? 0.8 : 1.0; }},
};

TEST(SpeedFall, IsNotSeenInWhatIsSteadyOrComesBack) {
    std::mt19937 random(3);
    for (const double seconds : {2.2, 3.5, 6.0, 30.0, 120.0})
        for (const Shape& shape : steadyShapes)
            for (const double noise : {0.0, 0.1, 0.3}) {
                std::lognormal_distribution<double> factor(0, noise);
                for (int round = 0; round < 30; ++round)
                    EXPECT_FALSE(speedFall(RateCurve(curve(
                        seconds, [&](double t) { return 1e9 * shape.rate(t, seconds) * factor(random); }))))
                        << shape.name << ' ' << seconds << " s, noise " << noise;
            }
    // A rate that wanders, each second's away from the last one's.
    std::normal_distribution<double> push;
    for (int round = 0; round < 200; ++round) {
        double place = 0;
        EXPECT_FALSE(speedFall(RateCurve(curve(30, [&](double) {
            place = 0.9 * place + 0.44 * push(random);
            return 1e9 * std::exp(0.15 * place);
        }))));
    }
    // Periods of any length and phase that come back once at least, as sawteeth and as steps.
    for (double periods = 1.6; periods < 8; periods += 0.1)
        for (double phase = 0; phase < 1; phase += 0.1) {
            const auto place = [&](double t) { return std::fmod(t / 30 * periods + phase, 1); };
            EXPECT_FALSE(speedFall(RateCurve(curve(30, [&](double t) { return 1e9 * (1.1 - place(t)); }))))
                << periods << ' ' << phase;
            for (const double duty : {0.3, 0.5, 0.8})
                EXPECT_FALSE(
                    speedFall(RateCurve(curve(30, [&](double t) { return place(t) < duty ? 1e9 : 2e8; }))))
                    << periods << ' ' << phase << ' ' << duty;
        }
}

TEST(SpeedFall, TellsBothLevelsAndWhatWentBefore) {
    std::mt19937 random(5);
    for (const double noise : {0.0, 0.1}) {
        std::lognormal_distribution<double> factor(0, noise);
        for (const double at : {1.5, 8.0, 22.0}) {
            const auto fall = speedFall(
                RateCurve(curve(30, [&](double t) { return (t < at ? 1.9e9 : 3.1e8) * factor(random); })));
            ASSERT_TRUE(fall) << noise << ' ' << at;
            EXPECT_NEAR(fall->before, 1.9e9, 1e8);
            EXPECT_NEAR(fall->after, 3.1e8, 2e7);
            EXPECT_NEAR(fall->bytesBefore, 1.9e9 * at, 2e8 * at);
        }
    }
    JudgedRun run = ordinary();
    run.write().samples = curve(20, [](double t) { return t < 10 ? 1e9 : 3e8; });
    EXPECT_EQ(told(run), "speedFell caution sequentialWrite 1e+09 3e+08 1e+10");
}

TEST(SpeedFall, IsSeenThroughBursts) {
    // A throttle lets a little through at once and then waits.
    std::vector<ThroughputSample> samples;
    for (int i = 0; i < 100; ++i) {
        const double rate = i < 35 ? 2e8 : 5e7;
        samples.push_back({i * 0.1 + 0.02, 4 * rate});
        samples.push_back({i * 0.1 + 0.1, 0.25 * rate});
    }
    const auto fall = speedFall(RateCurve(samples));
    ASSERT_TRUE(fall);
    EXPECT_NEAR(fall->before, 2e8, 1e7);
    EXPECT_NEAR(fall->after, 5e7, 2e6);
    EXPECT_NEAR(fall->bytesBefore, 7e8, 2e7);
    EXPECT_FALSE(speedFall(RateCurve({samples.begin(), samples.begin() + 70})));
}

TEST(SpeedFall, IsNotSeenInSamplesThatMakeNoSense) {
    auto samples = curve(20, [](double t) { return t < 10 ? 1e9 : 3e8; });
    for (const ThroughputSample nonsense :
         {ThroughputSample{3, 1e9}, {5.1, notANumber}, {5.1, -1}, {notANumber, 1}, {5.1, 1e308}}) {
        auto changed = samples;
        changed[50] = nonsense;
        EXPECT_EQ(RateCurve(changed).size(), nonsense.bytesPerSecond == 1e308 ? 200U : 0U);
        EXPECT_FALSE(speedFall(RateCurve(changed)));
    }
    EXPECT_FALSE(speedFall(RateCurve({})));
}

} // namespace
