#include "TarnwickKit/views/runs/RunFacts.h"

#include "tests/TarnwickKit/views/Runs.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace TarnwickKit::views;
using TarnwickKit::model::RunRecord;

namespace {

TEST(RunFacts, RecogniseANetworkVolumeAlsoByItsFileSystem) {
    using Kind = RunRecord::Kind;
    const struct {
        Kind recorded;
        const char* fileSystem;
        Kind kind;
        const char* symbol;
        const char* connection;
    } cases[] = {
        {Kind::internalDrive, "ext4", Kind::internalDrive, "internaldrive", "External"},
        {Kind::external, "ext4", Kind::external, "externaldrive", "External"},
        {Kind::external, "NFS", Kind::network, "externaldrive.connected.to.line.below", "Network"},
        {Kind::network, "ext4", Kind::network, "externaldrive.connected.to.line.below", "Network"},
    };
    for (const auto& c : cases) {
        RunRecord run = test::fullRun();
        run.kind = c.recorded;
        run.fsType = c.fileSystem;
        const RunFacts facts = RunFacts::of(run);
        EXPECT_EQ(facts.kind, static_cast<int>(c.kind));
        EXPECT_EQ(facts.badgeSymbol, c.symbol);
        EXPECT_EQ(facts.connection, c.connection);
        EXPECT_EQ(facts.isNetwork, c.kind == Kind::network);
    }
}

TEST(RunFacts, KeepEachRateApart) {
    RunRecord run = test::fullRun();
    run.writeBps = 1;
    run.writePeakBps = 2;
    run.writeMinBps = 3;
    run.readBps = 4;
    run.readPeakBps = 5;
    run.readMinBps = std::nullopt;
    const RunFacts facts = RunFacts::of(run);
    EXPECT_EQ((std::vector{facts.writeBps, facts.writePeakBps, facts.writeMinBps, facts.readBps,
                           facts.readPeakBps}),
              (std::vector<double>{1, 2, 3, 4, 5}));
    EXPECT_TRUE(std::isnan(facts.readMinBps));
    EXPECT_EQ(facts.id, run.id);
}

} // namespace
