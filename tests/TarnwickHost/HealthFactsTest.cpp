#include "TarnwickHost/Facts.h"
#include "TarnwickHost/HostProcess.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

using OndelCore::health::DiskHealth;
using OndelCore::health::OndelSMART;
using OndelCore::health::SmartReading;

namespace {

TEST(HealthFacts, HoldEveryFieldOfTheRecord) {
    OndelSMART record;
    std::strcpy(record.kind, "NVMe");
    record.available = record.failing = record.has_temperature = record.has_nvme_counters = 1;
    record.temperature = -273;
    record.media_errors = std::numeric_limits<std::uint64_t>::max();
    record.unsafe_shutdowns = std::numeric_limits<std::int64_t>::max();
    record.data_read_tb = 0.5;
    const SmartReading disk{.disk = "nvme0n1", .record = record, .source = "NVMe health log of nvme0n1"};
    const QJsonObject json = TarnwickHost::healthJson(
        {.smart = DiskHealth::smart(record), .disks = {disk}, .source = disk.source});

    EXPECT_EQ(json["status"], "failing");
    EXPECT_EQ(json["source"], "NVMe health log of nvme0n1");
    EXPECT_EQ(json["attributes"][1]["label"], "Unsafe shutdowns");
    const QJsonObject fields = json["record"].toObject();
    EXPECT_EQ(fields.size(), 42);
    EXPECT_EQ(fields["kind"], "NVMe");
    EXPECT_EQ(fields["temperature"], -273);
    EXPECT_EQ(fields["data_read_tb"], 0.5);
    EXPECT_EQ(fields["unsafe_shutdowns"].toInteger(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(fields["media_errors"].toDouble(), 18446744073709551615.0);

    const QJsonObject mirror =
        TarnwickHost::healthJson({.smart = DiskHealth::smart(record), .disks = {disk, disk}, .source = {}});
    EXPECT_FALSE(mirror.contains("record"));
    EXPECT_EQ(mirror["disks"][1]["disk"], "nvme0n1");
    EXPECT_EQ(mirror["disks"][1]["source"], "NVMe health log of nvme0n1");
    EXPECT_EQ(mirror["disks"][1]["record"], fields);
}

TEST(HealthFacts, SayInOneLineWhyThereAreNone) {
    const test::HostOutcome report = test::runHost({"smart-report", "/proc"});
    EXPECT_EQ(report.exitStatus, 1);
    EXPECT_EQ(report.output, "");
    EXPECT_NE(report.errors.find("no device is behind this path"), std::string::npos) << report.errors;

    const test::HostOutcome facts = test::runHost({"facts", "--json", "/proc"});
    EXPECT_EQ(facts.exitStatus, 0) << facts.errors;
    const QJsonObject json = QJsonDocument::fromJson(QByteArray::fromStdString(facts.output)).object();
    EXPECT_EQ(json["health"], (QJsonObject{{"source", "no device is behind this path"}}));
}

} // namespace
