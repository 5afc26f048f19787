#include "TarnwickKit/model/capacity/CapacitySession.h"

#include "ModelHarness.h"
#include "SampleCheck.h"
#include "TarnwickKit/model/capacity/CapacityChecks.h"
#include "TarnwickKit/model/capacity/CapacityCodec.h"
#include "TarnwickKit/model/capacity/CapacityText.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <sys/stat.h>

#include <fstream>
#include <future>
#include <latch>

namespace TarnwickKit::model {

namespace {

using capacity::BlockState;
using capacity::CapacityPhase;
using capacity::CapacityPlan;
using capacity::CapacityProgress;
using capacity::CapacityResult;
using OndelCore::benchmark::Cancelled;

CapacityProgress progressOf(CapacityPhase phase, std::int64_t done, std::int64_t total, double elapsed) {
    const std::vector states(16, BlockState::verified);
    return {phase,
            done,
            total,
            done,
            1e8,
            elapsed,
            std::make_shared<const capacity::CapacityCells>(total / 16, states)};
}

/// A fake engine whose only check the test ends.
struct FakeCheck {
    std::promise<CapacityResult> answer;
    std::latch called{1};
    CapacityPlan plan;
    capacity::CapacityListener progress;
    std::stop_token stop;

    CapacityResult run(const CapacityPlan& asked, std::stop_token token,
                       const capacity::CapacityListener& listener) {
        plan = asked;
        stop = std::move(token);
        progress = listener;
        called.count_down();
        const std::stop_callback stopped(
            stop, [this] { answer.set_exception(std::make_exception_ptr(Cancelled())); });
        return answer.get_future().get();
    }
};

struct CapacitySessionTest : testing::Test {
    Engine engine;
    FakeCheck check;
    AnalyzerServices services = [this] {
        AnalyzerServices all = engine.services();
        all.checkCapacity = [this](const auto& plan, auto stop, const auto& progress) {
            return check.run(plan, std::move(stop), progress);
        };
        return all;
    }();
    AnalyzerModel model{services};

    CapacitySessionTest() { model.select(std::filesystem::path("/tmp")); }

    void begin(const CapacityPlan& plan = {}) {
        model.startCheck(plan);
        while (!check.called.try_wait())
            QCoreApplication::processEvents();
    }
    void turnUntilChecked() {
        turnUntil([this] { return !model.isChecking(); });
    }
    std::vector<CapacityRecord> stored() const { return CapacityChecks(engine.history.path()).checks(); }
};

TEST_F(CapacitySessionTest, KeepsTheRecordOfAFinishedCheck) {
    int changes = 0;
    QObject::connect(&model, &AnalyzerModel::busyChanged, [&] { ++changes; });
    begin({.folder = "/elsewhere", .size = gibi, .again = std::chrono::seconds(60)});
    EXPECT_EQ(check.plan.folder, "/tmp");
    EXPECT_TRUE(model.showsCheck());
    check.progress(progressOf(CapacityPhase::reading, gibi / 2, gibi, 4));
    turnUntil([&] { return model.capacity().course().last().has_value(); });
    check.answer.set_value(goodCheck(gibi).result);
    turnUntilChecked();
    EXPECT_EQ(changes, 2);
    ASSERT_EQ(stored().size(), 1u);
    EXPECT_EQ(stored().front().id, model.capacity().last()->id);
    EXPECT_EQ(capacitySentence(stored().front()), "All 1.0 GiB hold what was written.");
    EXPECT_EQ(stored().front().again, 60);
}

TEST_F(CapacitySessionTest, RunsNothingBesideACheckAndNoCheckBesideARun) {
    begin();
    EXPECT_FALSE(model.canRun());
    model.start();
    model.startCheck({});
    model.select(std::filesystem::path("/"));
    EXPECT_EQ(model.targetFolder(), "/tmp");
    EXPECT_TRUE(engine.calls.empty());
    for (const auto& call : engine.calls)
        call->finish({}); // else the model would wait for it
    check.answer.set_value({});
    turnUntilChecked();
    EXPECT_TRUE(model.canRun());

    engine.begin(model);
    EXPECT_FALSE(model.showsCheck());
    model.startCheck({}); // a second call of the engine would end the process: its answer is used up
    EXPECT_FALSE(model.isChecking());
    engine.finish(model);
}

TEST_F(CapacitySessionTest, AStoppedCheckTellsWhatItHasSeen) {
    begin();
    CapacityProgress last = progressOf(CapacityPhase::reading, gibi / 2, gibi, 4);
    std::vector states(16, BlockState::written);
    states[3] = BlockState::wrong;
    last.cells = std::make_shared<const capacity::CapacityCells>(gibi / 16, states);
    check.progress(last);
    auto ended = model.cancelAndWait();
    turnUntil([&] { return ended.isFinished(); });
    EXPECT_FALSE(model.isChecking());
    const CapacityRecord record = model.capacity().last().value();
    EXPECT_TRUE(record.wasStopped);
    EXPECT_EQ(record.result.verified, gibi / 2 - 4096);
    EXPECT_EQ(stored().size(), 1u);
    EXPECT_EQ(capacitySentence(record),
              "Before it was stopped, the check met blocks that did not come back as they were written, the "
              "first at 192.0 MiB.");
}

TEST_F(CapacitySessionTest, AStoppedCheckWithoutAFindingIsNotKept) {
    begin();
    check.progress(progressOf(CapacityPhase::writing, gibi / 2, gibi, 4));
    model.cancel();
    turnUntilChecked();
    EXPECT_EQ(capacitySentence(model.capacity().last().value()),
              "The check was stopped before anything was read back.");
    EXPECT_TRUE(stored().empty());
}

TEST_F(CapacitySessionTest, AFailureIsToldInWords) {
    begin();
    check.answer.set_exception(std::make_exception_ptr(OndelCore::benchmark::BenchmarkError(
        OndelCore::benchmark::BenchmarkError::InsufficientSpace{2 * gibi, gibi})));
    turnUntilChecked();
    EXPECT_EQ(model.capacity().failure().message, "Not enough space: needs 2.0 GiB, only 1.0 GiB free.");
    EXPECT_FALSE(model.capacity().last());
    EXPECT_TRUE(stored().empty());
}

TEST(CapacityCourse, TellsShareRateAndTimeLeft) {
    CapacityCourse course;
    course.begin({.again = std::chrono::seconds(600)});
    EXPECT_FALSE(course.fraction());
    struct Step {
        CapacityPhase phase;
        double share;    ///< of the phase
        double fraction; ///< of the check
        std::optional<double> left;
    };
    const std::vector<Step> steps{
        {CapacityPhase::preparing, 0, 0, {}},          {CapacityPhase::writing, 0, 0, {}},
        {CapacityPhase::writing, 0.5, 1.0 / 6, 3100},  {CapacityPhase::reading, 0, 1.0 / 3, {}},
        {CapacityPhase::reading, 0.5, 0.5, 2100},      {CapacityPhase::waiting, 0.5, 2.0 / 3, {}},
        {CapacityPhase::readingAgain, 0, 2.0 / 3, {}}, {CapacityPhase::readingAgain, 0.75, 11.0 / 12, 250}};
    for (const Step& step : steps) {
        const std::int64_t total = 100 * gibi;
        CapacityProgress progress =
            progressOf(step.phase, static_cast<std::int64_t>(step.share * static_cast<double>(total)), total,
                       1000 * step.share);
        course.take(progress);
        EXPECT_NEAR(course.fraction().value_or(-1), step.fraction, 1e-6);
        EXPECT_EQ(course.timeLeft().has_value(), step.left.has_value()) << step.fraction;
        EXPECT_NEAR(course.timeLeft().value_or(0), step.left.value_or(0), 1) << step.fraction;
    }
    EXPECT_EQ(course.writeRates().size(), 2u);
    EXPECT_NEAR(course.readRates().back().place, 0.75, 0.01);
}

// --- The list

struct CapacityChecksTest : testing::Test {
    test::TemporaryFolder folder;
    std::filesystem::path file = folder.path() / "checks.json";

    static CapacityRecord numbered(int number) {
        CapacityRecord check = goodCheck(gibi);
        check.id = QUuid(0x5EED, 0, 0, 0, 0, 0, 0, 0, 0, 0, static_cast<uchar>(number));
        return check;
    }
    std::vector<QUuid> stored() const {
        std::vector<QUuid> ids;
        CapacityChecks checks(folder.path());
        for (const CapacityRecord& check : checks.checks())
            ids.push_back(check.id);
        return ids;
    }
};

TEST_F(CapacityChecksTest, KeepsTheLastTwentyOfAllPrograms) {
    CapacityChecks here(folder.path());
    CapacityChecks there(folder.path());
    EXPECT_TRUE(here.checks().empty());
    for (int number = 1; number <= 12; ++number) {
        here.add(numbered(number));
        there.add(numbered(100 + number));
    }
    const auto ids = stored();
    ASSERT_EQ(ids.size(), CapacityChecks::limit);
    EXPECT_EQ(ids.front(), numbered(112).id);
    EXPECT_EQ(ids[1], numbered(12).id);
    EXPECT_EQ(ids.back(), numbered(3).id);
    here.refresh();
    EXPECT_EQ(here.checks(), there.checks());
    struct stat info{};
    ASSERT_EQ(stat(file.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
}

TEST_F(CapacityChecksTest, SavesWhatReadableADamagedFileHas) {
    const std::string damaged =
        "[" + encodeCheck(numbered(1))->toStdString() + ",{\"id\":" + encodeCheck(numbered(2))->toStdString();
    std::ofstream(file) << damaged;
    CapacityChecks checks(folder.path());
    EXPECT_EQ(checks.checks().size(), 2u);
    EXPECT_EQ(readRunFile(file), damaged); // looking changes nothing
    checks.add(numbered(3));
    EXPECT_EQ(stored(), (std::vector{numbered(3).id, numbered(1).id, numbered(2).id}));
    int kept = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        if (entry.path().filename().native().starts_with("checks.unreadable-"))
            kept += readRunFile(entry.path()) == damaged ? 1 : 0;
    EXPECT_EQ(kept, 1);

    // A pipe would block whoever reads it.
    std::filesystem::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    CapacityChecks(folder.path()).add(numbered(4));
    EXPECT_EQ(stored(), std::vector{numbered(4).id});
}

TEST_F(CapacityChecksTest, KeepsInMemoryWhatItCannotWrite) {
    CapacityChecks none(std::nullopt);
    none.add(numbered(1));
    EXPECT_EQ(none.checks().size(), 1u);

    const auto link = folder.path() / "elsewhere.json";
    std::filesystem::create_symlink(link, file);
    CapacityChecks(folder.path()).add(numbered(2));
    EXPECT_TRUE(std::filesystem::is_symlink(file));
    EXPECT_TRUE(std::filesystem::is_regular_file(link));
}

} // namespace

} // namespace TarnwickKit::model
