#include "TarnwickHost/HostProcess.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace fs = std::filesystem;

using test::runHost;

namespace {

/// What stands behind a line break, or all of the text.
std::string lastLine(std::string text) {
    if (text.ends_with('\n'))
        text.pop_back();
    return text.substr(text.rfind('\n') + 1);
}

/// Width of the picture whose path is the last line of `output`.
int widthOf(const std::string& output) { return QImage(QFile::decodeName(lastLine(output).c_str())).width(); }

TEST(Card, IsDrawnAfterTheRunAndFromItsFile) {
    const test::TemporaryFolder folder;
    const std::vector<std::string> run{"run", "--tests", "sequentialWrite", "--size", "1M"};
    const auto with = [&](std::vector<std::string> more) {
        more.insert(more.begin(), run.begin(), run.end());
        more.push_back(folder.path());
        return runHost(more);
    };
    const auto drawn = with({"--card", "dark"});
    ASSERT_EQ(drawn.exitStatus, 0) << drawn.errors;
    EXPECT_EQ(widthOf(drawn.output), 1616);
    const fs::path shared = fs::path(lastLine(drawn.output)).parent_path();
    EXPECT_EQ(std::distance(fs::directory_iterator(shared), {}), 1) << "the run's own file was only lent";

    const auto kept = with({"--handoff"});
    const std::string file = lastLine(kept.output);
    const auto card = runHost({"card", file});
    EXPECT_EQ(card.exitStatus, 0) << card.errors;
    EXPECT_EQ(card.errors, "");
    EXPECT_EQ(widthOf(card.output), 1616);
    const auto compared = runHost({"card", "--dark", file, file});
    EXPECT_EQ(fs::path(lastLine(compared.output)).filename(), "Ondel Tarnwick — Comparison.png");
    EXPECT_EQ(widthOf(compared.output), 1616);

    // One line for each thing that does not go, and no picture of the rest.
    const auto half = runHost({"card", file, folder.path() / "missing"});
    EXPECT_EQ(std::tuple(half.exitStatus, half.output), std::tuple(1, ""));
    EXPECT_EQ(std::ranges::count(half.errors, '\n'), 1) << half.errors;
    EXPECT_EQ(runHost({"card"}).exitStatus, 2);
    EXPECT_EQ(with({"--card", "pink"}).exitStatus, 2);

    const fs::path picture = lastLine(card.output);
    fs::remove(picture);
    fs::create_directories(picture / "in the way");
    const auto refused = runHost({"card", file});
    EXPECT_EQ(std::tuple(refused.exitStatus, refused.output), std::tuple(1, ""));
    EXPECT_EQ(refused.errors,
              "The picture could not be drawn, or not be written to your temporary folder.\n");
    fs::remove_all(shared);
}

TEST(Card, RunsNoProgramOfTheCurrentFolder) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer needs /proc itself";
#endif
    if (geteuid() != 0)
        GTEST_SKIP() << "hiding /proc needs root";
    const test::TemporaryFolder folder;
    const fs::path foreign = folder.path() / "tarnwick-host-card";
    std::ofstream(foreign) << "#!/bin/sh\necho foreign\n";
    fs::permissions(foreign, fs::perms::owner_all);
    test::HostProcess process({.arguments = {"card", "some.tarnwickrun"}, .prepare = [&] {
                                   const bool hidden =
                                       unshare(CLONE_NEWNS) == 0 &&
                                       mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                                       mount("none", "/proc", "tmpfs", 0, nullptr) == 0;
                                   if (!hidden || chdir(folder.path().c_str()) != 0)
                                       _exit(77);
                               }});
    const auto ended = process.wait();
    if (ended.exitStatus == 77)
        GTEST_SKIP() << "/proc cannot be hidden here";
    EXPECT_EQ(std::tuple(ended.exitStatus, ended.output), std::tuple(1, ""));
    EXPECT_EQ(ended.errors, "tarnwick-host-card could not be started: No such file or directory\n");
}

} // namespace
