#include "TarnwickHost/HostProcess.h"
#include "support/DeafFileSystem.h"

#include <gtest/gtest.h>

#include <csignal>

namespace {

TEST(HangingVolume, DoesNotBlockTheEndOfACommand) {
    const test::DeafFileSystem seen;
    if (!seen.problem().empty())
        GTEST_SKIP() << seen.problem();
    const auto volumes = test::runHost({"volumes"});
    EXPECT_EQ(volumes.exitStatus, 0) << volumes.errors;
    EXPECT_NE(volumes.output.find(seen.path().string()), std::string::npos);
    for (const std::string command : {"facts", "run", "smart-report"})
        for (const int signal : {SIGTERM, SIGINT}) {
            const test::DeafFileSystem deaf;
            test::HostProcess host({.arguments = {command, deaf.path().string()}});
            deaf.awaitRequest();
            host.signal(signal);
            EXPECT_NE(host.wait().exitStatus, 0) << command;
        }
}

} // namespace
