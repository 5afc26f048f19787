#include "TarnwickHost/Facts.h"

#include "OndelCore/health/DiskHealth.h"
#include "TarnwickHost/HostProcess.h"
#include "support/DeafFileSystem.h"
#include "support/PortalFolder.h"
#include "support/TemporaryFolder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

#include <gtest/gtest.h>
#include <sys/mount.h>

#include <csignal>
#include <cstring>
#include <limits>

using OndelCore::health::DiskHealth;
using OndelCore::health::OndelSMART;
using OndelCore::health::SmartReading;
using test::runHost;

namespace {

QStringList keysOf(const QJsonValue& object) {
    QStringList keys = object.toObject().keys();
    keys.sort();
    return keys;
}

QJsonDocument json(const std::vector<std::string>& arguments) {
    const auto outcome = runHost(arguments);
    EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors;
    return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output));
}

TEST(Facts, HoldEveryFieldByItsName) {
    const QJsonObject facts = json({"facts", "--json", "/"}).object();
    EXPECT_EQ(keysOf(facts["volume"]),
              (QStringList{"available", "connection", "device", "format", "isEncrypted", "isInternal",
                           "isReadOnly", "isRemovable", "name", "purgeable", "rawAvailable", "total", "used",
                           "usedFraction", "volumeURL"}));
    EXPECT_EQ(facts["volume"]["volumeURL"], "file:///");
    QStringList capabilities = keysOf(facts["capabilities"]);
    capabilities.removeOne("maxLinkCount"); // not every file system has one
    EXPECT_EQ(capabilities,
              (QStringList{"blockSize", "filesystemType", "isCasePreserving", "isCaseSensitive",
                           "isJournalActive", "isSealed", "maxNameLength", "maxPathLength", "optimalIOSize",
                           "supportsCloning", "supportsExtendedAttributes", "supportsExtendedSecurity",
                           "supportsHardLinks", "supportsJournal", "supportsNamedStreams",
                           "supportsSnapshots", "supportsSparseFiles", "supportsSymbolicLinks"}));
    EXPECT_TRUE(facts["drive"].isObject());
}

TEST(Facts, KeepTheBytesOfAMountPointAndLeaveOutWhatIsNotKnown) {
    const test::TemporaryFolder parent;
    const auto point = parent.path() / "50% caf\xe9";
    std::filesystem::create_directory(point);
    if (mount("tmpfs", point.c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "no right to mount";
    const QJsonObject facts = json({"facts", "--json", point.string()}).object();
    const auto text = runHost({"facts", point.string()}).output;
    umount2(point.c_str(), MNT_DETACH);
    const QByteArray url = facts["volume"]["volumeURL"].toString().toUtf8();
    EXPECT_TRUE(url.endsWith("/50%25%20caf%E9")) << url.toStdString();
    EXPECT_EQ(QByteArray::fromPercentEncoding(url).toStdString(), "file://" + point.string());
    EXPECT_FALSE(facts["capabilities"].toObject().contains("optimalIOSize"));
    EXPECT_TRUE(QString::fromLocal8Bit(text).contains(QRegularExpression("\\n *Block size +4.0 KiB\\n")))
        << text;
    EXPECT_TRUE(QString::fromLocal8Bit(text).contains(QRegularExpression("\\n *Optimal transfer +--\\n")))
        << text;
}

TEST(Facts, StayOnOneLineEachWhateverTheFolderIsCalled) {
    const test::TemporaryFolder parent;
    for (const std::string name : {"two\nlines", "caf\xe9", "-dash", "\x1b[31m"}) {
        std::filesystem::create_directory(parent.path() / name);
        const auto outcome = runHost({"facts", (parent.path() / name).string()});
        EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors;
        EXPECT_EQ(outcome.output.rfind("Volume\n  Name ", 0), 0U);
        EXPECT_EQ(outcome.output.find('\x1b'), std::string::npos);
    }
}

TEST(Volumes, ListTheRootOnceInBothForms) {
    const QJsonDocument list = json({"volumes", "--json"});
    ASSERT_TRUE(list.isArray());
    int roots = 0;
    for (const QJsonValue& volume : list.array())
        if (volume["url"] == "file:///") {
            ++roots;
            EXPECT_GT(volume["total"].toInteger(), 0);
            EXPECT_FALSE(volume["name"].toString().isEmpty());
        }
    EXPECT_EQ(roots, 1);
    // Other tests mount and unmount meanwhile.
    const auto isOfATest = [](const QString& place) { return test::isOfATest(place.toStdString()); };
    const QString text = QString::fromStdString(runHost({"volumes"}).output);
    qsizetype rows = -1; // without the head
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts))
        rows += !isOfATest(line.mid(line.indexOf(" /") + 1));
    qsizetype volumes = 0;
    for (const QJsonValue& volume : list.array())
        volumes += !isOfATest(QUrl(volume["url"].toString()).toLocalFile());
    EXPECT_EQ(rows, volumes) << text.toStdString();
    EXPECT_EQ(text.count(" /\n"), 1) << text.toStdString();
}

TEST(PortalFolder, IsTheFolderBehindForEachCommand) {
    const test::TemporaryFolder behind;
    test::PortalFolder portal(behind.path());
    if (!portal.problem().empty())
        GTEST_SKIP() << portal.problem();
    portal.tell(behind.path().string());
    const std::string handed = portal.path().string();
    const auto facts = json({"facts", "--json", handed});
    EXPECT_TRUE(facts["volume"].isObject());
    EXPECT_EQ(facts["volume"]["volumeURL"],
              json({"facts", "--json", behind.path().string()})["volume"]["volumeURL"]);
    const auto run =
        json({"run", "--json", "--tests", "randomRead", "--size", "1M", "--random-ops", "1", handed});
    EXPECT_EQ(run["folder"].toString().toStdString(), behind.path().string());
    const auto check = runHost({"check", "--size", "1M", handed});
    EXPECT_EQ(check.exitStatus, 0) << check.errors;
}

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
