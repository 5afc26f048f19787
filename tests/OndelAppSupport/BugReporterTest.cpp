#include "OndelAppSupport/report/BugReporter.h"

#include "OndelAppSupport/LaunchLog.h"
#include "OndelCore/logging/LogScrubber.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/platform/process/UnifiedLog.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

using namespace OndelAppSupport;
using namespace OndelCore::logging;

namespace {

struct Root {
    test::TemporaryFolder folder;

    void write(const std::string& file, const std::string& text) const {
        std::filesystem::create_directories((folder.path() / file).parent_path());
        std::ofstream(folder.path() / file) << text;
    }
};

} // namespace

TEST(BugReporter, ReadsTheBuild) {
    const auto dictionary = [](const QVariantMap& values) { return InformationDictionary(values); };
    const QString version = "CFBundleShortVersionString", number = "CFBundleVersion",
                  secret = "OndelReportSecret";
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, "2.0"}, {number, "7"}})), "2.0 (7)");
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, "2.0"}})), "2.0 (?)");
    EXPECT_EQ(BugReporter::appVersion(dictionary({{version, 2.0}, {number, QVariant()}})), "? (?)");
    EXPECT_FALSE(BugReporter::appVersion().contains(u'?'));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({})));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({{secret, QString()}})));
    EXPECT_FALSE(BugReporter::isConfigured(dictionary({{secret, 5}})));
    EXPECT_TRUE(BugReporter::isConfigured(dictionary({{secret, "s"}})));
}

TEST(BugReporter, ReadsTheSystem) {
    const Root nothing;
    EXPECT_EQ(BugReporter::osVersion(nothing.folder.path()), "Linux");
    EXPECT_EQ(BugReporter::hardwareModel(nothing.folder.path()), "unknown");
    EXPECT_EQ(BugReporter::chip(nothing.folder.path()), "unknown");
    EXPECT_GT(BugReporter::memoryGB(nothing.folder.path()), 0) << "from the kernel";

    const Root root;
    const auto& path = root.folder.path();
    root.write("usr/lib/os-release", "NAME=x\nPRETTY_NAME='Some Linux 7'\n");
    EXPECT_EQ(BugReporter::osVersion(path), "Some Linux 7");
    root.write("etc/os-release", "XPRETTY_NAME=no\nPRETTY_NAME=\"The \\\"Quoted\\\" Größe\"\nID=x\n");
    EXPECT_EQ(BugReporter::osVersion(path), "The \"Quoted\" Größe");
    root.write("sys/class/dmi/id/product_name", "To Be Filled By O.E.M.\n");
    EXPECT_EQ(BugReporter::hardwareModel(path), "unknown");
    root.write("proc/device-tree/model", std::string("Board 5\0", 8));
    EXPECT_EQ(BugReporter::hardwareModel(path), "Board 5");
    root.write("sys/class/dmi/id/product_name", "  Desktop 3000 \n");
    root.write("proc/cpuinfo",
               "processor\t: 0\nmodel\t\t: 1\nmodel name\t: Fast CPU @ 3 GHz\nmodel name\t: other\n");
    root.write("sys/devices/system/memory/block_size_bytes", "c0000000\n"); // 3 GiB
    for (const char* block : {"memory0", "memory1", "memory7", "memory9"})
        root.write(std::string("sys/devices/system/memory/") + block + "/online", "1\n");
    root.write("sys/devices/system/memory/memory8/online", "0\n");
    EXPECT_EQ(BugReporter::memoryGB(path), 12);
    EXPECT_EQ(BugReporter::hardwareSummary(path), "Desktop 3000 · Fast CPU @ 3 GHz · 12 GB");
    root.write("sys/devices/system/memory/block_size_bytes", "8000000\n"); // half a GiB in all
    EXPECT_EQ(BugReporter::memoryGB(path), 1);
}

TEST(LaunchLog, WritesVersionAndSystemFirst) {
    const auto store = LogStore::makeForTesting(10);
    const LogScrubber scrubber(OndelCore::platform::UserFacts{});
    const OndelCore::platform::UnifiedLog noJournal("/nonexistent");
    const LogOutput output{*store, scrubber, noJournal};
    startLogging(output);
    store->flush();

    std::ifstream file(std::filesystem::path(getenv("XDG_STATE_HOME")) / "Ondel Tarnwick" / "ondel.log");
    std::string line;
    ASSERT_TRUE(std::getline(file, line));
    const QString body =
        QStringLiteral("  notice  app  launched version=%1 os=%2 arch=%3 model=%4 reportingConfigured=%5")
            .arg(BugReporter::appVersion(), BugReporter::osVersion(), BugReporter::architecture(),
                 BugReporter::hardwareModel(),
                 BugReporter::isConfigured() ? QStringLiteral("true") : QStringLiteral("false"));
    EXPECT_EQ(line.substr(23), body.toStdString());
}
