#include "TarnwickKit/model/session/LiveProgress.h"

#include <algorithm>
#include <cmath>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkProgress;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::ThroughputSample;

namespace {

constexpr double figureSpan = 1;   ///< of the rate that people read; seconds
constexpr double estimateSpan = 8; ///< of the rate that the time left is computed with
/// The rates of a drive between the fast and the slow ones. Only the shares of the tests in a run's progress
/// depend on them.
constexpr double ordinaryBytesPerSecond = 500'000'000;
constexpr double ordinaryOperations = 2000;
constexpr double ordinaryFileOperations = 4000;

bool isSequential(BenchmarkTest test) {
    return test == BenchmarkTest::sequentialWrite || test == BenchmarkTest::sequentialRead;
}

bool isRandom(BenchmarkTest test) {
    return test == BenchmarkTest::randomRead || test == BenchmarkTest::randomWrite;
}

double ordinaryRate(BenchmarkTest test) {
    if (isSequential(test))
        return ordinaryBytesPerSecond;
    return isRandom(test) ? ordinaryOperations : ordinaryFileOperations;
}

/// The bytes that stand for one unit of the test's amount.
double unitOf(BenchmarkTest test, const BenchmarkPlan& plan) {
    return isRandom(test) ? static_cast<double>(BenchmarkPlan::alignedBlock(plan.randomBlockSize)) : 1;
}

} // namespace

void LiveProgress::begin(const BenchmarkPlan& plan, std::optional<std::int64_t> fillBytes) {
    *this = {};
    m_plan = plan;
    if (const auto* fixed = plan.size.asFixed())
        m_fileBytes = static_cast<double>(fixed->bytes);
    else if (fillBytes && *fillBytes > 0)
        m_fileBytes = static_cast<double>(*fillBytes);
    for (const BenchmarkTest test : plan.tests)
        m_tests.push_back({test});
    m_fraction = computeFraction();
}

void LiveProgress::take(const BenchmarkProgress& progress, std::span<const ThroughputSample> samples) {
    if (m_running != progress.test) {
        endTest(samples);
        beginTest(progress.test);
    }
    const double unit = unitOf(progress.test, m_plan);
    m_done = static_cast<double>(progress.completedBytes) / unit;
    m_total = static_cast<double>(progress.totalBytes) / unit;
    mark({progress.elapsed, m_done});
    if (const auto now = computeFraction())
        m_fraction = std::max(m_fraction.value_or(0), *now);
}

void LiveProgress::beginTest(BenchmarkTest next) {
    m_running = next;
    m_marks.clear();
    m_points.clear();
    if (isSequential(next))
        m_marks.push_back({}); // the other tests tell where they begin
    for (Test& test : m_tests)
        if (test.test <= next)
            test.stage = test.test == next ? Stage::running : Stage::done;
}

void LiveProgress::endTest(std::span<const ThroughputSample> samples) {
    if (!m_running)
        return;
    if (*m_running == BenchmarkTest::sequentialWrite)
        m_fileBytes = m_done;
    const auto test = std::ranges::find(m_tests, *m_running, &Test::test);
    if (test == m_tests.end())
        return;
    const double elapsed = m_marks.empty() ? 0 : m_marks.back().elapsed;
    test->result = elapsed > 0 ? m_done / elapsed : 0;
    if (isSequential(*m_running)) {
        const OndelCore::benchmark::ThroughputResult result{
            static_cast<std::int64_t>(m_done), elapsed, 1, {samples.begin(), samples.end()}};
        test->result = result.sustainedBytesPerSecond();
    }
}

/// Keeps what the longest span needs, and one mark before it.
void LiveProgress::mark(const Mark& next) {
    if (!m_marks.empty()) {
        const Mark& last = m_marks.back();
        if (!(next.elapsed > last.elapsed) || next.done < last.done)
            return; // no time, no rate
        if (m_running && !isSequential(*m_running))
            addPoint(last, next);
    }
    m_marks.push_back(next);
    while (m_marks.size() > 2 && m_marks[1].elapsed <= next.elapsed - estimateSpan)
        m_marks.pop_front();
}

void LiveProgress::addPoint(const Mark& last, const Mark& next) {
    const double rate = (next.done - last.done) / (next.elapsed - last.elapsed);
    if (m_points.empty())
        m_points.push_back({last.elapsed, rate});
    m_points.push_back({next.elapsed, rate});
}

/// Over at least one interval of two events.
std::optional<double> LiveProgress::rateOver(double seconds) const {
    if (m_marks.size() < 2)
        return std::nullopt;
    const Mark& last = m_marks.back();
    auto first = m_marks.rbegin() + 1;
    while (std::next(first) != m_marks.rend() && first->elapsed > last.elapsed - seconds)
        ++first;
    return (last.done - first->done) / (last.elapsed - first->elapsed);
}

std::optional<double> LiveProgress::rate() const { return rateOver(figureSpan); }

std::optional<double> LiveProgress::amountOf(BenchmarkTest test) const {
    if (isSequential(test))
        return m_fileBytes;
    if (isRandom(test))
        return static_cast<double>(m_plan.randomOpCount);
    return 4 * static_cast<double>(m_plan.fileOpCount);
}

/// Of a test that is to come, by its counterpart in this run. File operations are too short on most volumes
/// for their time to matter.
std::optional<double> LiveProgress::secondsOf(BenchmarkTest test) const {
    if (test == BenchmarkTest::fileOps)
        return *amountOf(test) / ordinaryFileOperations;
    const auto amount = amountOf(test);
    std::optional<double> rate;
    for (const Test& other : m_tests) {
        if (isSequential(other.test) != isSequential(test) || isRandom(other.test) != isRandom(test))
            continue;
        if (other.stage == Stage::done)
            rate = other.result;
        else if (other.stage == Stage::running)
            rate = rateOver(estimateSpan);
    }
    return amount && rate && *rate > 0 ? std::optional(*amount / *rate) : std::nullopt;
}

std::optional<LiveProgress::TimeLeft> LiveProgress::timeLeft() const {
    const auto rate = rateOver(estimateSpan);
    const double total = m_total > 0 || !m_running ? m_total : amountOf(*m_running).value_or(0);
    if (!rate || !(*rate > 0) || !(total > 0))
        return std::nullopt;
    TimeLeft left{std::max(0.0, total - m_done) / *rate, true};
    double later = 0;
    for (const Test& test : m_tests) {
        if (test.stage != Stage::toCome)
            continue;
        const auto seconds = secondsOf(test.test);
        left.isOfRun &= seconds.has_value();
        later += seconds.value_or(0);
    }
    if (left.isOfRun)
        left.seconds += later;
    return left;
}

std::optional<double> LiveProgress::computeFraction() const {
    double all = 0;
    double done = 0;
    for (const Test& test : m_tests) {
        const auto amount = amountOf(test.test);
        if (!amount)
            return std::nullopt;
        const double weight = *amount / ordinaryRate(test.test);
        all += weight;
        if (test.stage == Stage::done)
            done += weight;
        else if (const double total = m_total > 0 ? m_total : *amount;
                 test.stage == Stage::running && total > 0)
            done += weight * std::clamp(m_done / total, 0.0, 1.0);
    }
    return all > 0 ? std::optional(done / all) : std::nullopt;
}

} // namespace TarnwickKit::model
