#include "OndelCore/logging/LogStore.h"

#include <gtest/gtest.h>

#include <map>

using namespace OndelCore::logging;
using namespace std::chrono_literals;

namespace {

/// 2026-03-14 09:26:53.250 UTC, the time zone of the tests.
constexpr std::chrono::sys_time<std::chrono::milliseconds> afternoon{1773480413250ms};

struct Store {
    std::chrono::sys_time<std::chrono::nanoseconds> now = afternoon;
    std::unique_ptr<LogStore> store;

    explicit Store(std::size_t lines)
        : store(LogStore::makeForTesting(
              lines, {.now = [this] {
                  return std::chrono::time_point_cast<std::chrono::system_clock::duration>(now);
              }})) {}

    void append(const std::string& body) { store->append(LogLevel::notice, "app", body); }
};

std::size_t linesOf(const std::string& text) {
    return text.empty() ? 0 : 1 + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

TEST(LogStore, StampsLines) {
    Store log(8);
    log.append("one");
    log.now += 749'999'999ns;
    log.append("two");
    log.now += 1ns;
    log.append("three");
    log.now = afternoon - 24h; // the clock was put back
    log.append("four");
    log.now = std::chrono::sys_time<std::chrono::nanoseconds>(-1ms);
    log.append("five");
    EXPECT_EQ(log.store->snapshot(10000), "2026-03-14 09:26:53.250  notice  app  one\n"
                                          "2026-03-14 09:26:53.999  notice  app  two\n"
                                          "2026-03-14 09:26:54.000  notice  app  three\n"
                                          "2026-03-13 09:26:53.250  notice  app  four\n"
                                          "1969-12-31 23:59:59.999  notice  app  five");
}

TEST(LogStore, KeepsTheNewestLines) {
    Store log(LogStore::capacity);
    EXPECT_EQ(log.store->snapshot(1 << 20), "");
    for (int i = 0; i < 2000; ++i)
        log.append("line " + std::to_string(i));
    EXPECT_EQ(linesOf(log.store->snapshot(1 << 20)), 2000u);
    EXPECT_NE(log.store->snapshot(1 << 20).find("  line 0\n"), std::string::npos);
    log.append("line 2000");
    const std::string text = log.store->snapshot(1 << 20);
    EXPECT_EQ(linesOf(text), 2000u);
    EXPECT_EQ(text.find("  line 0\n"), std::string::npos);
    EXPECT_TRUE(text.ends_with("  line 1999\n2026-03-14 09:26:53.250  notice  app  line 2000"));
    log.store->clear();
    EXPECT_EQ(log.store->snapshot(1 << 20), "");
    log.append("after");
    EXPECT_EQ(linesOf(log.store->snapshot(1 << 20)), 1u);
}

TEST(LogStore, SnapshotHasTheWholeLinesThatFit) {
    Store log(8);
    log.append("first");
    log.append("a longer line than the first");
    const std::string both = log.store->snapshot(1000);
    const std::string newest = both.substr(both.find('\n') + 1);
    const auto snapshot = [&](std::size_t bytes) {
        return log.store->snapshot(static_cast<std::int64_t>(bytes));
    };
    EXPECT_EQ(snapshot(both.size() + 1), both);
    EXPECT_EQ(snapshot(both.size()), newest);
    EXPECT_EQ(snapshot(newest.size() + 1), newest);
    EXPECT_EQ(snapshot(newest.size()), "");
    EXPECT_EQ(log.store->snapshot(0), "");
    EXPECT_EQ(log.store->snapshot(-1), "");
}

TEST(LogStore, KeepsAllLinesOfFourThreadsInOrder) {
    constexpr int perThread = 5000;
    const auto store = LogStore::makeForTesting(4 * perThread);
    std::vector<std::jthread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&store, t] {
            for (int i = 0; i < perThread; ++i) {
                store->append(LogLevel::notice, "app", std::to_string(t) + " " + std::to_string(i));
                if (i % 500 == 0)
                    store->snapshot(30000);
            }
        });
    threads.clear();

    std::map<std::string, int> next;
    const std::string text = store->snapshot(1 << 30);
    ASSERT_EQ(linesOf(text), 4u * perThread);
    for (std::size_t at = 0; at < text.size(); at = std::min(text.find('\n', at), text.size()) + 1) {
        const std::string line = text.substr(at, text.find('\n', at) - at);
        const auto number = line.rfind(' ');
        ASSERT_EQ(line.substr(number + 1), std::to_string(next[line.substr(number - 1, 1)]++));
    }
}
