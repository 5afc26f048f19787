// What a log line costs whoever logs it. Run with --benchmark_repetitions=9 and read the medians; `append`
// states its own.

#include "OndelCore/logging/Log.h"
#include "OndelCore/logging/LogOutput.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"
#include "OndelCore/platform/process/UnifiedLog.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using namespace OndelCore::logging;
using OndelCore::platform::UnifiedLog;
using OndelCore::platform::UserFacts;

namespace {

constexpr std::string_view usualBody =
    "benchmark finished took=48123.7ms writeMBps=2210 readMBps=3105 randomReadIops=11873";

UserFacts someUser() { return {"annika", "Annika Example", "kestrel-tower", "/home/annika"}; }

/// A store with its file, as the application runs it.
struct FiledStore {
    std::filesystem::path folder = std::filesystem::temp_directory_path() / "ondel-logging-bench";
    std::unique_ptr<LogStore> store = LogStore::makeForTesting(LogStore::capacity);

    FiledStore() {
        store->startFileLogging(folder);
        for (std::size_t i = 0; i < LogStore::capacity; ++i)
            store->append(LogLevel::notice, "app", usualBody);
    }
    ~FiledStore() {
        store.reset();
        std::filesystem::remove_all(folder);
    }
    FiledStore(const FiledStore&) = delete;
    FiledStore& operator=(const FiledStore&) = delete;
};

/// Times every append on its own, for the median: the mean of many at once would also hold the page faults of
/// the megabytes that then wait for the file. The clock's own cost is in the figure.
void append(benchmark::State& state) {
    constexpr std::size_t perThread = 5000;
    const auto threadCount = static_cast<std::size_t>(state.range(0));
    std::vector<std::int64_t> nanoseconds;
    const FiledStore filed;
    for (auto _ : state) {
        std::vector<std::vector<std::int64_t>> taken(threadCount, std::vector<std::int64_t>(perThread));
        std::vector<std::jthread> threads;
        for (auto& mine : taken)
            threads.emplace_back([&filed, &mine] {
                for (std::int64_t& time : mine) {
                    const auto start = std::chrono::steady_clock::now();
                    filed.store->append(LogLevel::notice, "app", usualBody);
                    time = std::chrono::nanoseconds(std::chrono::steady_clock::now() - start).count();
                }
            });
        threads.clear();
        filed.store->flush();
        for (const auto& mine : taken)
            nanoseconds.insert(nanoseconds.end(), mine.begin(), mine.end());
    }
    std::sort(nanoseconds.begin(), nanoseconds.end());
    const auto at = [&](double share) {
        return static_cast<double>(
            nanoseconds.at(static_cast<std::size_t>(share * static_cast<double>(nanoseconds.size()))));
    };
    state.counters["median_ns"] = at(0.5);
    state.counters["p90_ns"] = at(0.9);
    state.counters["p99_ns"] = at(0.99);
}
BENCHMARK(append)->Arg(1)->Arg(4)->Iterations(50)->Unit(benchmark::kMillisecond);

/// `journal`: a path; none listens at the one that does not exist.
void emit(benchmark::State& state, const char* journal, auto... makeField) {
    const FiledStore filed;
    const LogScrubber scrubber(someUser());
    const UnifiedLog unified(journal);
    const LogOutput output{*filed.store, scrubber, unified};
    const Log log("app", &output);
    for (auto _ : state)
        log.notice("run imported", makeField()...);
}
constexpr auto countField = [] { return LogField::int_("tests", 5); };
constexpr auto timeField = [] { return LogField::ms("took", 48123.7); };
constexpr auto tokenField = [] { return LogField::token("fs", "ext4"); };
constexpr auto pathField = [] { return LogField::name("path", "/srv/data/My Files/report.final.pdf"); };
BENCHMARK_CAPTURE(emit, threeFields, "/nonexistent", countField, timeField, tokenField);
BENCHMARK_CAPTURE(emit, threeFieldsOnePath, "/nonexistent", countField, timeField, pathField);
BENCHMARK_CAPTURE(emit, threeFieldsWithJournal, "/run/systemd/journal/socket", countField, timeField,
                  tokenField);

void emitBelowMinimum(benchmark::State& state) {
    for (auto _ : state)
        Log::app.debug("dropped", LogField::int_("tests", 5));
}
BENCHMARK(emitBelowMinimum);

void snapshot(benchmark::State& state) {
    const FiledStore filed;
    for (auto _ : state)
        benchmark::DoNotOptimize(filed.store->snapshot(30000));
}
BENCHMARK(snapshot);

/// A text of one megabyte made of `unit`, behind `head`: the worst a rule can be given.
void scrub(benchmark::State& state, const std::string& head, const std::string& unit,
           const std::string& tail) {
    const auto bytes = static_cast<std::size_t>(state.range(0));
    std::string line = head;
    while (line.size() < bytes)
        line += unit;
    line += tail;
    const LogScrubber scrubber(someUser());
    int count = 0;
    for (auto _ : state) {
        std::string text = line;
        count = scrubber.scrub(text);
        benchmark::DoNotOptimize(text);
    }
    state.counters["replaced"] = count;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(line.size()));
}
#define TORTURE(name, ...)                                                                                   \
    BENCHMARK_CAPTURE(scrub, name, __VA_ARGS__)->Arg(1 << 18)->Arg(1 << 20)->Unit(benchmark::kMillisecond)
TORTURE(clean, "", "an ordinary line of words, ", "");
TORTURE(literals, "", "annika ", "");
TORTURE(usersOneLong, "", "/Users/", "");
TORTURE(usersMany, "", "/Users/a/b ", "");
TORTURE(homeOneLong, "/home/", "a", "");
TORTURE(homeMany, "", "/home/a ", "");
TORTURE(mailNoDomain, "", "a", "@");
TORTURE(mailManyAts, "", "a@", "");
TORTURE(mailLongDomain, "a@", "b-", "");
TORTURE(mailDotsOnly, "a@", ".b", "");
TORTURE(mailMany, "", "a@b.cc ", "");
TORTURE(addressNeverEnds, "", "1.1.1.", "");
TORTURE(addressMany, "", "1.1.1.1 ", "");
TORTURE(colonsOnly, "", ":", "");
TORTURE(groupsOfFour, "", "a:b:c:d ", "");
TORTURE(groupsMany, "", "a:b:c:d:e ", "");
TORTURE(secretOneLong, "", "a", "");
TORTURE(secretOfDashes, "", "-", "");
TORTURE(secretManyWords, "", "a-", "");
TORTURE(secretTooShort, std::string(32, '-') + " ", "aaaaaaaaaaaaaaa-aaaaaaaaaaaaaaa ", "");
TORTURE(secretMany, "", "0123456789abcdef0123456789abcdef ", "");

} // namespace

BENCHMARK_MAIN();
