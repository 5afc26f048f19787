#include "TarnwickHost/HostProcess.h"
#include "support/FaultyDisk.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <string>

namespace fs = std::filesystem;

using test::HostProcess;
using test::runHost;

namespace {

constexpr std::int64_t mebibyte = 1048576;

QJsonObject object(const std::string& json) {
    return QJsonDocument::fromJson(QByteArray::fromStdString(json)).object();
}

TEST(CheckCommand, TellsASoundFolderFromAVolumeThatLoses) {
    const test::TemporaryFolder folder;
    const auto text = runHost({"check", "--size", "3M", folder.path()});
    EXPECT_EQ(text.exitStatus, 0) << text.errors;
    EXPECT_TRUE(text.output.starts_with("All 3.0 MiB ")) << text.output;
    const auto sound = runHost({"check", "--size", "3M", "--quick", "--again=0", "--json", folder.path()});
    EXPECT_EQ(sound.exitStatus, 0) << sound.errors;
    EXPECT_EQ(object(sound.output)["verdict"], "unproven");
    EXPECT_TRUE(object(sound.output)["readAgain"].isObject());
    EXPECT_TRUE(fs::is_empty(folder.path()));

    test::FaultyVolume volume("ext4", 64 * mebibyte, {}, {"-q"});
    if (!volume.problem().empty())
        GTEST_SKIP() << volume.problem();
    volume.disk().arm({.kind = test::DiskFault::Kind::dropZeros, .limit = 16 * mebibyte});
    const auto bad = runHost({"check", "--leave-free", "0", "--size=all", "--json", volume.path()});
    EXPECT_EQ(bad.exitStatus, 3) << bad.errors;
    EXPECT_EQ(object(bad.output)["verdict"], "bad");
    EXPECT_GT(object(bad.output)["wrong"].toInteger(), mebibyte);
}

TEST(CheckCommand, IsStoppedBySignalsWithWhatItFoundUntilThen) {
    const test::TemporaryFolder folder;
    HostProcess check(
        {.arguments = {"check", "--size=1M", "--again", "86400", folder.path()}, .terminalColumns = 100});
    ASSERT_TRUE(check.terminalShows("Waiting"));
    check.signal(SIGTERM);
    const auto outcome = check.wait();
    EXPECT_EQ(outcome.exitStatus, 130);
    EXPECT_NE(outcome.output.find("stopped"), std::string::npos) << outcome.output;
    EXPECT_TRUE(fs::is_empty(folder.path()));
}

TEST(CheckCommand, SaysWhyItFails) {
    const auto much = runHost({"check", "--size", "1000000T", fs::temp_directory_path()});
    EXPECT_EQ(much.exitStatus, 1);
    EXPECT_TRUE(much.errors.starts_with("Not enough space")) << much.errors;
    const auto nowhere = runHost({"check", "/proc/self"});
    EXPECT_EQ(nowhere.exitStatus, 1);
    EXPECT_EQ(std::ranges::count(nowhere.errors, '\n'), 1) << nowhere.errors;
}

} // namespace
