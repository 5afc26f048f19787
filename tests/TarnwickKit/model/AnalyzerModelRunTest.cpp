#include "ModelHarness.h"
#include "TarnwickKit/model/session/ProgressStream.h"
#include "TarnwickKit/model/session/RunSession.h"

#include <latch>
#include <optional>
#include <thread>

namespace TarnwickKit::model {

namespace {

using namespace OndelCore::benchmark;
using Phase = AnalyzerModel::Phase;

BenchmarkProgress event(BenchmarkTest test, double rate, double elapsed = 0, std::int64_t completed = 0,
                        std::int64_t total = 0) {
    return {test, completed, total, rate, elapsed};
}

struct AnalyzerModelRun : testing::Test {
    Engine engine;
    AnalyzerServices services = engine.services();
    AnalyzerModel model{services};

    AnalyzerModelRun() { model.select(std::filesystem::path("/")); }

    /// Sends an event and waits until the model has taken it.
    void send(const BenchmarkProgress& progress) {
        engine.last().progress(progress);
        turnUntil([&] { return model.completedBytes() == progress.completedBytes; });
    }
};

TEST_F(AnalyzerModelRun, RequiresATargetAndATest) {
    AnalyzerModel fresh(services);
    fresh.start();
    EXPECT_EQ(fresh.phase(), Phase::Idle);
    fresh.select(QUrl("https://example.invalid/"));
    EXPECT_FALSE(fresh.targetFolder());
    EXPECT_FALSE(fresh.canRun());
    fresh.select(QUrl::fromLocalFile("/tmp/ä b"));
    EXPECT_EQ(fresh.targetFolder(), std::filesystem::path("/tmp/ä b"));
    EXPECT_TRUE(fresh.canRun());
    fresh.setSelectedTests({});
    EXPECT_FALSE(fresh.canRun());
    fresh.setTestSelected("randomRead", true);
    EXPECT_TRUE(fresh.canRun());
    EXPECT_DEATH(fresh.setTestSelected("SequentialRead", true), "names no test");
}

TEST_F(AnalyzerModelRun, PlansBySettings) {
    model.setSelectedTests({BenchmarkTest::fileOps, BenchmarkTest::sequentialRead});
    model.setSizeIndex(5);
    model.setWriteBlock(1);
    model.setReadBlock(2);
    model.setRandomBlock(3);
    model.setBypassCache(false);
    const auto tests = {BenchmarkTest::sequentialRead, BenchmarkTest::fileOps};
    const auto size = BenchmarkSize::fillDisk(1073741824);
    EXPECT_EQ(model.makePlan(), (BenchmarkPlan{tests, size, 1, 2, 3, 10000, 1000, false, 0.02}));
    for (const int index : {6, -1}) {
        model.setSizeIndex(index);
        EXPECT_DEATH(model.makePlan(), "sizeIndex " + std::to_string(index));
    }
}

TEST_F(AnalyzerModelRun, ShowsTheResult) {
    engine.begin(model);
    EXPECT_TRUE(model.isRunning());
    send(event(BenchmarkTest::sequentialWrite, 5e6, 0.1, 10, 20));
    BenchmarkResult result;
    result.sequentialWrite = ThroughputResult{1000000000, 2.0, 4096, {{1, 4e8}, {2, 1.2344e9}}};
    result.randomRead = IOPSResult{12345, 1.0, 4096};
    result.randomWrite = IOPSResult{5, 0, 4096};
    result.fileOps = FileOpsResult{{950, 1}, {1, 1}, {1, 1}, {1, 1}};
    engine.finish(model, result);
    EXPECT_EQ(model.phase(), Phase::Done);
    EXPECT_EQ(model.result(), result);
    EXPECT_FALSE(model.liveTest());
    EXPECT_EQ(model.liveSamples().size(), 1u);
    EXPECT_EQ(model.totalBytes(), 20);
    EXPECT_EQ(model.sidebarValues(), QStringList({"1,234", "", "12.3k", "0", "950"}));

    model.start();
    EXPECT_FALSE(model.result());
    EXPECT_EQ(model.liveSamples().size(), 0u);
    EXPECT_EQ(model.totalBytes(), 0);
    engine.finish(model);
    EXPECT_EQ(model.sidebarValues(), QStringList({"", "", "", "", ""}));
}

TEST_F(AnalyzerModelRun, FailureStaysUntilTheNextSelection) {
    engine.begin(model);
    send(event(BenchmarkTest::sequentialRead, 5e6, 0.1, 10, 20));
    engine.last().fail(BenchmarkError(BenchmarkError::Io{"read: %1 %2", ESTALE}));
    turnUntilEnded(model);
    EXPECT_EQ(model.phase(), Phase::Failed);
    EXPECT_EQ(model.failureMessage(), "I/O error: read: %1 %2");
    EXPECT_EQ(model.failureExplanation(), "The folder was removed or its volume unplugged during the run.");
    EXPECT_EQ(model.liveTest(), BenchmarkTest::sequentialRead);
    EXPECT_EQ(model.completedBytes(), 10);
    EXPECT_FALSE(model.result());
    EXPECT_TRUE(model.canRun());

    model.select(std::filesystem::path("/"));
    EXPECT_EQ(model.phase(), Phase::Idle);
    EXPECT_EQ(model.failureMessage(), "");
    EXPECT_EQ(model.failureExplanation(), "");
    EXPECT_EQ(model.liveSamples().size(), 0u);
    EXPECT_EQ(model.completedBytes(), 10);
    EXPECT_EQ(AnalyzerModel::describe(BenchmarkError(BenchmarkError::InsufficientSpace{5368709120, 1023})),
              "Not enough space: needs 5.0 GiB, only 1023 B free.");
}

TEST_F(AnalyzerModelRun, EngineThatCannotStartFailsTheRun) {
    services.runBenchmark = [](auto&&...) -> QFuture<BenchmarkResult> {
        throw std::system_error(EAGAIN, std::generic_category(), "mkdir");
    };
    AnalyzerModel unlucky(services);
    unlucky.select(std::filesystem::path("/"));
    unlucky.start();
    turnUntilEnded(unlucky);
    EXPECT_EQ(unlucky.failureMessage(), "Resource temporarily unavailable");
    EXPECT_EQ(unlucky.failureExplanation(), "");
}

TEST_F(AnalyzerModelRun, CancelWaitsForTheEngine) {
    EXPECT_TRUE(model.cancelAndWait().isFinished());
    engine.begin(model);
    send(event(BenchmarkTest::sequentialRead, 5e6, 0.1, 10, 20));
    model.cancel();
    QFuture<void> ended = model.cancelAndWait();
    EXPECT_TRUE(engine.last().stop.stop_requested());
    QCoreApplication::processEvents();
    EXPECT_TRUE(model.isRunning());
    EXPECT_FALSE(ended.isFinished());
    model.select(std::filesystem::path("/elsewhere"));
    EXPECT_EQ(model.targetFolder(), "/");

    engine.last().fail(Cancelled());
    turnUntil([&] { return ended.isFinished(); });
    EXPECT_EQ(model.phase(), Phase::Idle);
    EXPECT_EQ(model.liveTest(), BenchmarkTest::sequentialRead);
    model.cancel();
    EXPECT_TRUE(model.cancelAndWait().isFinished());
    EXPECT_EQ(model.phase(), Phase::Idle);
}

TEST_F(AnalyzerModelRun, NextRunMayStartFromTheEndOfOne) {
    engine.begin(model);
    QObject::connect(&model, &AnalyzerModel::phaseChanged, &model, [this] {
        if (model.phase() == Phase::Done && engine.calls.size() == 1)
            model.start();
    });
    model.start(); // ignored during a run
    EXPECT_EQ(engine.calls.size(), 1u);
    engine.last().finish({});
    turnUntil([this] { return engine.calls.size() == 2; });
    EXPECT_TRUE(model.isRunning());
    engine.finish(model);
    EXPECT_EQ(model.phase(), Phase::Done);
}

TEST_F(AnalyzerModelRun, ThinsLiveSamples) {
    for (int index = 0; index < 2000; ++index)
        model.apply(event(BenchmarkTest::sequentialWrite, index + 1, index));
    EXPECT_EQ(model.liveSamples().size(), 2000u);
    model.apply(event(BenchmarkTest::sequentialWrite, 0, 2000, 8, 9));
    EXPECT_EQ(model.liveSamples().size(), 2000u);
    EXPECT_EQ(model.completedBytes(), 8);
    EXPECT_EQ(model.totalBytes(), 9);
    model.apply(event(BenchmarkTest::sequentialWrite, 2001, 2000));
    ASSERT_EQ(model.liveSamples().size(), 1001u);
    for (std::size_t index = 0; index < 1001; ++index)
        ASSERT_EQ(model.liveSamples()[index].elapsed, 2.0 * static_cast<double>(index));

    model.apply(event(BenchmarkTest::sequentialRead, 3, 0.5));
    EXPECT_EQ(model.liveSamples(), (std::vector<ThroughputSample>{{0.5, 3}}));
    EXPECT_EQ(model.property("liveTest").toString(), "sequentialRead");
}

TEST_F(AnalyzerModelRun, KeepsTheTemperaturesOfTheCurrentTest) {
    using Temperatures = std::vector<RunSession::Temperature>;
    int changes = 0;
    QObject::connect(&model, &AnalyzerModel::liveTemperaturesChanged, &model, [&] { ++changes; });
    const auto apply = [this](double elapsed, std::optional<double> celsius,
                              BenchmarkTest test = BenchmarkTest::randomRead) {
        BenchmarkProgress progress = event(test, 0, elapsed);
        progress.celsius = celsius;
        model.apply(progress);
    };
    apply(0, std::nullopt);
    EXPECT_EQ(changes, 0) << "without a sensor nothing changes";
    for (const auto& [elapsed, celsius] :
         std::initializer_list<std::pair<double, double>>{{0.1, 40}, {0.9, 40}, {1, 41}, {1.5, 41}, {2, 41}})
        apply(elapsed, celsius);
    apply(2.5, std::nullopt);
    EXPECT_EQ(model.liveTemperatures(), (Temperatures{{0.1, 40}, {1, 41}, {2, 41}}));
    EXPECT_EQ(changes, 3);
    for (int second = 3; second <= 2000; ++second)
        apply(second, 41);
    ASSERT_EQ(model.liveTemperatures().size(), 1001u);
    EXPECT_EQ(model.liveTemperatures().at(1), (RunSession::Temperature{2, 41}));

    apply(0, 42, BenchmarkTest::randomWrite);
    EXPECT_EQ(model.liveTemperatures(), (Temperatures{{0, 42}}));
    model.select(std::filesystem::path("/tmp"));
    EXPECT_TRUE(model.liveTemperatures().empty());
}

TEST_F(AnalyzerModelRun, CanBeCancelledAsSoonAsItStarts) {
    const auto once = QObject::connect(&model, &AnalyzerModel::phaseChanged, &model, [this] {
        if (model.isRunning())
            model.cancel();
    });
    model.start();
    EXPECT_FALSE(model.isRunning());
    EXPECT_TRUE(model.cancelAndWait().isFinished());
    QObject::disconnect(once);
    engine.begin(model);
    EXPECT_EQ(engine.calls.size(), 1u) << "the cancelled run did not reach the engine";
    engine.finish(model);
    EXPECT_EQ(model.phase(), Phase::Done);
}

TEST_F(AnalyzerModelRun, TakesAllEventsInOrderAndAnnouncesBatches) {
    engine.begin(model);
    int announcements = 0;
    QObject::connect(&model, &AnalyzerModel::progressChanged, &model, [&] { ++announcements; });
    std::thread([this] {
        for (int index = 1; index <= 1500; ++index)
            engine.last().progress(event(BenchmarkTest::sequentialWrite, index, index, index, 1500));
    }).join();
    turnUntil([this] { return model.completedBytes() == 1500; });
    EXPECT_EQ(announcements, 1);
    ASSERT_EQ(model.liveSamples().size(), 1500u);
    for (std::size_t index = 0; index < 1500; ++index)
        ASSERT_EQ(model.liveSamples()[index].bytesPerSecond, static_cast<double>(index + 1));

    // Events that arrive after the run's end are dropped.
    engine.finish(model);
    engine.last().progress(event(BenchmarkTest::sequentialRead, 1, 1, 1, 1));
    QCoreApplication::processEvents();
    EXPECT_EQ(model.completedBytes(), 1500);
}

TEST(ProgressStream, DropsQueuedEventsOnCancel) {
    int taken = 0;
    auto stream = std::make_unique<ProgressStream>([&](const ProgressStream::Batch&) { ++taken; });
    const auto send = stream->sender();
    send(event(BenchmarkTest::sequentialWrite, 1));
    stream->cancel();
    QCoreApplication::processEvents();
    send(event(BenchmarkTest::sequentialWrite, 1));
    stream.reset();
    send(event(BenchmarkTest::sequentialWrite, 1));
    QCoreApplication::processEvents();
    EXPECT_EQ(taken, 0);
}

TEST_F(AnalyzerModelRun, WaitsForTheSweep) {
    const auto gate = std::make_shared<std::latch>(1);
    services.cleanupOrphans = [gate](const std::filesystem::path&) { gate->wait(); };
    AnalyzerModel swept(services);
    swept.select(std::filesystem::path("/"));
    swept.start();
    QCoreApplication::processEvents();
    EXPECT_TRUE(swept.isRunning());
    EXPECT_TRUE(engine.calls.empty());

    swept.cancel();
    EXPECT_EQ(swept.phase(), Phase::Idle);
    swept.start();
    gate->count_down();
    turnUntil([this] { return !engine.calls.empty(); });
    EXPECT_EQ(engine.calls.size(), 1u);
    engine.finish(swept);
    EXPECT_EQ(swept.phase(), Phase::Done);
}

TEST_F(AnalyzerModelRun, EndsWithTheModel) {
    std::atomic<bool> cleanedUp = false;
    services.runBenchmark = [&](BenchmarkPlan, std::filesystem::path, auto progress, std::stop_token stop) {
        QPromise<BenchmarkResult> promise;
        promise.start();
        auto future = promise.future();
        std::thread([&cleanedUp, stop, progress, promise = std::move(promise)]() mutable {
            while (!stop.stop_requested())
                progress(event(BenchmarkTest::sequentialWrite, 1));
            cleanedUp = true;
            promise.setException(std::make_exception_ptr(Cancelled()));
            promise.finish();
        }).detach();
        return future;
    };
    {
        AnalyzerModel brief(services);
        brief.select(std::filesystem::path("/"));
        brief.start();
        turnUntil([&] { return !brief.liveSamples().empty(); });
    }
    EXPECT_TRUE(cleanedUp);
}

} // namespace

} // namespace TarnwickKit::model
