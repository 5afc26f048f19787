#include "OndelCore/platform/drives/DiskWitness.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using namespace OndelCore::platform;

namespace {

struct CountingDisks : testing::Test {
    void write(const char* disk, const std::string& stat) const {
        std::filesystem::create_directory(folder.path() / disk);
        std::ofstream(folder.path() / disk / "stat") << stat;
    }
    const test::TemporaryFolder folder;
    const std::unique_ptr<DiskWitness> witness = witnessOf({folder.path() / "sda", folder.path() / "sdb"});
};

TEST_F(CountingDisks, AreSummedUpInBytes) {
    write("sda", "   10    1   16   3   20   2   32   0   0   0   0\n"); // kernels before 4.18 end here
    write("sdb", "  100    0  160   0  200   0  320   0   0   0   0   0   0   0   0   5   6\n");
    EXPECT_EQ(witness->counters(), (DiskCounters{176 * 512, 110, 352 * 512, 220}));
    EXPECT_FALSE(witnessOf({}));
}

TEST_F(CountingDisks, ThatTellNonsenseOrCountBackTellNothing) {
    write("sda", "10 0 16 0 20 0 32 0");
    for (const char* bad : {"", "no numbers at all", "1 2 3", "-1 0 0 0 0 0 0",
                            "9 0 99999999999999999999 0 0 0 0", "9 0 9000000000000000000 0 0 0 0"}) {
        write("sdb", bad);
        EXPECT_FALSE(witness->counters()) << bad;
    }
    write("sdb", "100 0 160 0 200 0 320 0");
    EXPECT_TRUE(witness->counters());
    write("sdb", "100 0 159 0 200 0 320 0");
    EXPECT_FALSE(witness->counters());
    std::filesystem::remove_all(folder.path() / "sda");
    EXPECT_FALSE(witness->counters());
}

TEST(ThreadTraffic, CountsWhatThisThreadWrote) {
    const test::TemporaryFolder folder; // may lie in memory, where nothing counts
    const auto before = trafficOfThisThread();
    if (!before)
        GTEST_SKIP() << "the kernel does not account for threads";
    const FileDescriptor file(open((folder.path() / "file").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    const std::vector<char> block(1 << 20);
    ASSERT_EQ(write(file.get(), block.data(), block.size()), 1 << 20);
    const auto after = trafficOfThisThread();
    EXPECT_GE(after->readBytes, before->readBytes);
    const std::int64_t written = after->writtenBytes - before->writtenBytes;
    EXPECT_TRUE(written == 0 || written >= 1 << 20) << written;
}

} // namespace
