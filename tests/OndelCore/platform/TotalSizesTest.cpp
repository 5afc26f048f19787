#include "OndelCore/platform/TotalSizes.h"

#include "OndelCore/platform/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace OndelCore::platform;
using namespace std::chrono_literals;

namespace {

TEST(TotalSizes, DoNotWaitForAServerThatHangs) {
    const test::TemporaryFolder folder;
    const std::filesystem::path hanging = folder.path() / "hangs";
    ASSERT_EQ(mkfifo(hanging.c_str(), 0600), 0);
    const SizeAnswer answer = [&](const std::filesystem::path& path) -> std::optional<std::int64_t> {
        if (path == hanging)
            const FileDescriptor reader(open(path.c_str(), O_RDONLY | O_CLOEXEC)); // until somebody writes
        return path == "/gone" ? std::nullopt : std::optional<std::int64_t>(path.native().size());
    };
    using Sizes = std::vector<std::optional<std::int64_t>>;
    EXPECT_EQ(totalSizes({{hanging, true}, {"/local", false}}, 1ms, answer), (Sizes{std::nullopt, 6}));
    // Put again, the question would keep this waiting.
    std::vector<SizeQuestion> questions(40, SizeQuestion{"/nfs", true});
    questions.insert(questions.begin(), {{hanging, true}, {"/gone", true}});
    Sizes expected(42, 4);
    expected[0] = expected[1] = std::nullopt;
    EXPECT_EQ(totalSizes(questions, 24h, answer), expected);
    const FileDescriptor writer(open(hanging.c_str(), O_WRONLY | O_CLOEXEC));
}

} // namespace
