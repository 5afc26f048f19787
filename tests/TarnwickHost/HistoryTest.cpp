#include "TarnwickHost/HostProcess.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunExport.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

using namespace TarnwickKit::model;
using test::runHost;
namespace fs = std::filesystem;

namespace {

void put(const fs::path& file, std::string_view content) { std::ofstream(file) << content; }

RunRecord storedRun(const char* id, double writeBps) {
    RunRecord run;
    run.id = QUuid::fromString(QLatin1StringView(id));
    run.date = QDateTime::fromSecsSinceEpoch(1714567890);
    run.volumeName = id;
    run.writeBps = writeBps;
    return run;
}

/// The history of the user whom the tests make up, with three runs. The ids of two begin alike.
class History : public testing::Test {
protected:
    void SetUp() override { history.add(std::vector{third, second, first}); }
    void TearDown() override { history.clear(); }

    const RunRecord first = storedRun("aaaabbbb-cccc-4000-8000-000000000001", 1e6);
    const RunRecord second = storedRun("aaaabbbb-cccc-4000-8000-000000000002", 2e6);
    const RunRecord third = storedRun("12345678-cccc-4000-8000-000000000003", 3e6);
    HistoryStore history;
    const test::TemporaryFolder folder;
};

TEST_F(History, IsListedShownAndDeletedByName) {
    const std::string listed = runHost({"history"}).output;
    EXPECT_EQ(std::ranges::count(listed, '\n'), 4) << listed;
    EXPECT_NE(listed.find("\nAAAABBBB-CCCC-4000-8000-000000000001  May 1, 2024"), std::string::npos)
        << listed << "names are as long as they need to be";

    const auto shown = runHost({"history", "show", "1234", "--format", "json"});
    EXPECT_EQ(shown.output, jsonList({third}).toStdString());
    EXPECT_EQ(runHost({"history", "show", "--format", "csv"}).output,
              csvTable({first, second, third}).toStdString());

    for (const char* name : {"aaaa", "123", "5555"}) {
        const auto refused = runHost({"history", "delete", "1234", name});
        EXPECT_EQ(refused.exitStatus, 1) << name;
        EXPECT_NE(refused.errors.find(name), std::string::npos) << refused.errors;
        EXPECT_EQ(decodeRuns(*readRunFile(*history.url()))->size(), 3u) << "none goes if not all are known";
    }
    EXPECT_EQ(runHost({"history", "delete", "1234", "12345678"}).exitStatus, 0);
    history.refresh();
    EXPECT_EQ(history.runs(), (std::vector{first, second})) << "as a window sees it that was open";
    EXPECT_EQ(runHost({"history", "delete", "--all"}).exitStatus, 0);
    history.refresh();
    EXPECT_TRUE(history.runs().empty());
}

TEST_F(History, IsExportedIntoFiles) {
    const auto written = [&](const char* name, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"history", "export", "--output", folder.path() / name});
        EXPECT_EQ(runHost(more).exitStatus, 0) << name;
        return QByteArray::fromStdString(readRunFile(folder.path() / name).value_or("none"));
    };
    const std::vector all{first, second, third};
    EXPECT_EQ(written("a.csv"), csvTable(all));
    EXPECT_EQ(written("a.json"), jsonList(all));
    EXPECT_EQ(written("a.md"), markdownTable(all).toUtf8());
    EXPECT_EQ(written("a.tarnwickrun", {"1234"}), encodeRun(third));
    EXPECT_EQ(written("a.tarnwickrun", {"--format", "csv"}), csvTable(all)) << "own files are replaced";
    EXPECT_EQ(written("a.md", {"--force"}), markdownTable(all).toUtf8());
    EXPECT_EQ(runHost({"history", "export", "--output", folder.path() / "a.md"}).exitStatus, 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 4);
}

TEST_F(History, TakesARunThatIsKept) {
    const fs::path file = folder.path() / "file";
    const fs::path link = folder.path() / "link";
    put(file, "");
    fs::create_symlink("file", link);
    const std::vector<std::string> run{"run", "--tests", "fileOps",  "--file-ops",
                                       "1",   "--keep",  "--output", link.string()};
    const auto with = [&](const fs::path& where) {
        std::vector<std::string> words = run;
        words.push_back(where);
        return runHost(words);
    };
    const auto kept = with(folder.path());
    ASSERT_EQ(kept.exitStatus, 0) << kept.errors;
    EXPECT_TRUE(fs::is_symlink(link));
    history.refresh();
    ASSERT_EQ(history.runs().size(), 4u);
    EXPECT_EQ(decodeRun(*readRunFile(file)), history.runs().front());
    EXPECT_EQ(history.runs().back(), third);

    // The run counts as failed, and its figures are printed all the same.
    fs::remove(*history.url());
    fs::create_symlink("/proc/none/history.json", *history.url());
    const auto lost = with(folder.path());
    fs::remove(*history.url());
    EXPECT_EQ(lost.exitStatus, 1);
    EXPECT_EQ(lost.errors, "The run could not be added to the history.\n");
    EXPECT_NE(lost.output.find("File operations"), std::string::npos);
}

TEST_F(History, IsShownFromFilesAndStandardInput) {
    const fs::path list = *history.url();
    EXPECT_EQ(runHost({"show", "--format", "csv", list}).output,
              csvTable({first, second, third}).toStdString());
    const auto fromInput = [&](const fs::path& input, std::vector<std::string> words) {
        test::HostProcess process({.arguments = std::move(words), .prepare = [&] {
                                       if (!std::freopen(input.c_str(), "r", stdin))
                                           _exit(77);
                                   }});
        return process.wait();
    };
    EXPECT_EQ(fromInput(list, {"show", "--format", "json", "-"}).output,
              jsonList({first, second, third}).toStdString());
    const auto nothing = fromInput("/dev/null", {"show", "-"});
    EXPECT_EQ(std::tuple(nothing.exitStatus, nothing.errors),
              std::tuple(1, "standard input is not a run file: an object was expected\n"));
    EXPECT_EQ(fromInput("/dev/zero", {"show", "-"}).errors,
              "standard input is larger than a run file can be (16 MiB)\n");
}

} // namespace
