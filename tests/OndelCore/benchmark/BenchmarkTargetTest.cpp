#include "OndelCore/benchmark/BenchmarkTarget.h"

#include <gtest/gtest.h>

#include <set>

using OndelCore::benchmark::BenchmarkTarget;
using OndelCore::platform::Mount;
namespace fs = std::filesystem;

namespace {

TEST(BenchmarkTarget, PicksAFolderThatCanBeWritten) {
    const auto mounted = [](dev_t device, const char* where) {
        Mount mount;
        mount.device = device;
        mount.mountPoint = where;
        return mount;
    };
    const Mount root = mounted(1, "/"), stick = mounted(2, "/media/stick"),
                rootAgain = mounted(1, "/mnt/root");
    struct Case {
        fs::path path;
        std::set<fs::path> writable;
        std::optional<Mount> volume;
        fs::path picked;
    };
    const Case cases[]{
        {"/media/stick/data", {"/media/stick/data"}, stick, "/media/stick/data"},
        {"/media/stick/data", {"/media/stick"}, stick, "/media/stick"},
        {"/media/stick/data", {}, stick, "/media/stick/data"},
        {"/", {"/"}, root, "/home/ada"},
        {"/etc", {"/"}, root, "/home/ada"},
        {"/mnt/root", {}, rootAgain, "/home/ada"},
        {"/gone", {}, std::nullopt, "/gone"},
    };
    for (const Case& each : cases) {
        const BenchmarkTarget::Lookup system{
            .isWritable = [&](const fs::path& path) { return each.writable.contains(path); },
            .mountOfPath = [&](const fs::path& path) { return path == "/home/ada" ? root : each.volume; },
        };
        EXPECT_EQ(BenchmarkTarget::folder(each.path, "/home/ada", system), each.picked);
    }
    EXPECT_EQ(BenchmarkTarget::folder("/", "/home/ada"), "/home/ada");
}

} // namespace
