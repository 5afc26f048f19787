#include "OndelCore/platform/TotalSizes.h"

#include <gtest/gtest.h>

#include <future>

using namespace OndelCore::platform;
using namespace std::chrono_literals;

namespace {

TEST(TotalSizes, DoNotWaitForAServerThatHangs) {
    // A name of its own, since the thread of an earlier turn may still be about to end.
    static int turn = 0;
    const std::filesystem::path hanging = "/hangs" + std::to_string(++turn);
    std::promise<void> release;
    const std::shared_future<void> released = release.get_future().share();
    std::promise<void> hangs; // set twice, it throws: a hanging question must not be put again
    std::promise<void> finished;
    const SizeAnswer answer = [&](const std::filesystem::path& path) -> std::optional<std::int64_t> {
        if (path != hanging)
            return path.native().size();
        hangs.set_value();
        released.wait();
        finished.set_value();
        return 99;
    };
    const std::vector<std::optional<std::int64_t>> onlyLocal{std::nullopt, 6};
    EXPECT_EQ(totalSizes({{hanging, true}, {"/local", false}}, 1ms, answer), onlyLocal);
    hangs.get_future().wait();
    const std::vector<std::optional<std::int64_t>> allOthers{std::nullopt, 4};
    EXPECT_EQ(totalSizes({{hanging, true}, {"/nfs", true}}, 1min, answer), allOthers);
    release.set_value();
    finished.get_future().wait();
}

} // namespace
