#include "OndelCore/platform/FakeDrives.h"
#include "OndelCore/platform/FakeUDisks.h"
#include "OndelCore/platform/drives/linux/DriveReaders.h"
#include "OndelCore/platform/drives/linux/DriveSensors.h"

#include <QDBusServiceWatcher>
#include <QDateTime>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>

#include <sys/socket.h>
#include <sys/sysmacros.h>
#include <sys/un.h>

namespace OndelCore::platform {

namespace {

using namespace Qt::StringLiterals;
using test::answerOf;
using test::FakeUDisks;
using test::UDisksScript;

const QString ata = u"org.freedesktop.UDisks2.Drive.Ata"_s;
const QString nvme = u"org.freedesktop.UDisks2.NVMe.Controller"_s;
const qulonglong disk = makedev(8, 0);

QVariantMap ataProperties() {
    return {{u"SmartSupported"_s, true},    {u"SmartEnabled"_s, true},
            {u"SmartFailing"_s, false},     {u"SmartUpdated"_s, QDateTime::currentSecsSinceEpoch()},
            {u"SmartTemperature"_s, 310.6}, {u"SmartPowerOnSeconds"_s, qulonglong{7200}}};
}

QVariantMap nvmeProperties() {
    return {{u"SmartUpdated"_s, static_cast<qulonglong>(QDateTime::currentSecsSinceEpoch())},
            {u"SmartCriticalWarning"_s, QStringList()},
            {u"SmartPowerOnHours"_s, qulonglong{8760}},
            {u"SmartTemperature"_s, QVariant::fromValue(ushort{311})}};
}

/// A disk without permission for this process, and a scripted service on a private bus.
class UDisks : public testing::Test {
protected:
    void SetUp() override {
        if (m_bus.address().empty())
            GTEST_SKIP() << "no dbus-daemon here";
        addDisk(m_machine, "sda", disk, "scsi", {{"device/vendor", "ATA"}});
        addDisk(m_machine, "nvme0n1", disk + 1, "nvme");
        for (const char* name : {"sda", "nvme0n1"})
            m_drives.drives[name].openError = EACCES;
    }

    SmartSources sourcesHere() {
        SmartSources sources = sourcesOf(m_machine, m_drives);
        sources.serviceBus = m_bus.address();
        return sources;
    }

    SmartAnswer ask(UDisksScript script, const char* name = "sda") {
        SmartSources sources = sourcesHere();
        sources.serviceLimit = std::chrono::milliseconds(script.isMute ? 50 : 5000);
        const FakeUDisks service(m_bus.address(), std::move(script));
        SmartAnswer answer = answerOf(name, sources);
        EXPECT_EQ(service.carelessCalls(), 0);
        return answer;
    }

    UDisksScript scriptOf(const QString& interface, const QVariantMap& properties, QVariant attributes) {
        UDisksScript script;
        script.objects = test::oneDrive(disk, interface, properties);
        script.attributes = std::move(attributes);
        return script;
    }

private:
    test::PrivateBus m_bus;
    test::FakeMachine m_machine;
    test::FakeDrives m_drives;
};

TEST_F(UDisks, ConvertsAtaFiguresToRawValues) {
    const QVariant table = test::ataTable({{5, 3, 8},
                                           {9, 2, 3600000LL * 30},
                                           {10, 1, 0},
                                           {12, 1, 1234},
                                           {187, 0, 77},
                                           {193, 1, -1},
                                           {194, 4, 311550},
                                           {197, 3, 2},
                                           {199, 9, 5}});
    // 38.4 °C: with 273 K in place of 273.15 K it would be 39.
    const SmartAnswer answer = ask(scriptOf(ata, ataProperties(), table));
    ASSERT_TRUE(std::holds_alternative<AtaSmartReport>(answer.blocks)) << answer.source;
    const auto& report = std::get<AtaSmartReport>(answer.blocks);
    EXPECT_FALSE(report.thresholdExceeded);
    EXPECT_EQ(report.attributes, (std::map<std::uint8_t, std::uint64_t>{
                                     {5, 8}, {9, 30}, {10, 0}, {12, 1234}, {194, 38}, {197, 2}}));
    EXPECT_EQ(answer.source, "UDisks2 for sda");
    const SmartAnswer withoutTable = ask(scriptOf(ata, ataProperties(), u"no table"_s));
    EXPECT_TRUE(std::holds_alternative<AtaSmartReport>(withoutTable.blocks)) << withoutTable.source;
}

TEST_F(UDisks, TellsATemperatureOnlyIfItIsFresh) {
    const auto withTemperature = [](QVariantMap properties, const QVariant& kelvin) {
        properties[u"SmartTemperature"_s] = kelvin;
        return properties;
    };
    QVariantMap old = ataProperties();
    old[u"SmartUpdated"_s] = static_cast<qulonglong>(QDateTime::currentSecsSinceEpoch() - 605);
    const struct {
        QString interface;
        QVariantMap properties;
        std::optional<double> celsius;
    } cases[] = {
        {ata, ataProperties(), 310.6 - 273.15},
        {nvme, nvmeProperties(), 311 - 273.15},
        {ata, old, {}},
        {ata, withTemperature(ataProperties(), 0.0), {}}, // the service does not know
        {ata, withTemperature(ataProperties(), u"310"_s), {}},
        {ata, {{u"SmartUpdated"_s, QDateTime::currentSecsSinceEpoch()}}, {}},
        {u"another"_s, ataProperties(), {}},
    };
    for (const auto& [interface, properties, celsius] : cases) {
        SmartSources sources = sourcesHere();
        UDisksScript script = scriptOf(interface, properties, {});
        script.refusesUpdate = true;
        const FakeUDisks service(sources.serviceBus, std::move(script));
        EXPECT_EQ(celsiusFromUDisks(*blockDevice(disk, sources.system.sysfs), sources), celsius);
        EXPECT_EQ(service.carelessCalls(), 0);
    }
}

TEST_F(UDisks, IsAskedForATemperatureOnAnotherThreadWhereTheKernelShowsNone) {
    for (const bool isMute : {false, true}) {
        SmartSources sources = sourcesHere();
        sources.serviceLimit = std::chrono::milliseconds(isMute ? 50 : 5000);
        UDisksScript script = scriptOf(ata, ataProperties(), {});
        script.isMute = isMute;
        const FakeUDisks service(sources.serviceBus, std::move(script));
        const BlockDevice place{.number = disk, .name = "sda", .folder = "/ata1/host0/block/sda"};
        DriveSensors sensors({place}, sources);
        const auto start = DriveSensors::Clock::now();
        EXPECT_FALSE(sensors.hottest(start));
        while (!isMute && !sensors.hottest(start))
            QThread::msleep(1);
        QThread::msleep(isMute ? 200 : 0);
        EXPECT_EQ(sensors.hottest(start).has_value(), !isMute);
        EXPECT_FALSE(sensors.limits().max);
    }
}

TEST_F(UDisks, ReportsTheLastFiguresOfASleepingDrive) {
    QVariantMap properties = ataProperties();
    properties[u"SmartFailing"_s] = true;
    properties[u"SmartUpdated"_s] = static_cast<qulonglong>(QDateTime::currentSecsSinceEpoch() - 605);
    UDisksScript script = scriptOf(ata, properties, {});
    script.refusesUpdate = true;
    const SmartAnswer answer = ask(script);
    ASSERT_TRUE(std::holds_alternative<AtaSmartReport>(answer.blocks)) << answer.source;
    EXPECT_TRUE(std::get<AtaSmartReport>(answer.blocks).thresholdExceeded);
    EXPECT_EQ(std::get<AtaSmartReport>(answer.blocks).attributes,
              (std::map<std::uint8_t, std::uint64_t>{{9, 2}, {194, 37}}));
    EXPECT_EQ(answer.source, "UDisks2 for sda, read 10 min ago");
}

TEST_F(UDisks, ConvertsNvmeFigures) {
    QVariantMap properties = nvmeProperties();
    properties[u"SmartUpdated"_s] = qulonglong{0};
    UDisksScript script = scriptOf(nvme, properties,
                                   QVariantMap{{u"avail_spare"_s, QVariant::fromValue(uchar{100})},
                                               {u"spare_thresh"_s, QVariant::fromValue(uchar{10})},
                                               {u"percent_used"_s, u"3"_s},
                                               {u"total_data_written"_s, ~qulonglong{0}},
                                               {u"media_errors"_s, qulonglong{0}},
                                               {u"power_cycles"_s, -5}});
    script.afterUpdate = nvmeProperties();
    script.afterUpdate[u"SmartCriticalWarning"_s] =
        QStringList{u"degraded"_s, u"pmr_readonly"_s, u"tomorrow"_s};
    const SmartAnswer answer = ask(script);
    ASSERT_TRUE(std::holds_alternative<NvmeSmartReport>(answer.blocks)) << answer.source;
    const auto& report = std::get<NvmeSmartReport>(answer.blocks);
    EXPECT_EQ(report.criticalWarning, 0x04 | 0x20 | 0x80);
    EXPECT_EQ(report.temperatureCelsius, 38);
    EXPECT_EQ(report.powerOnHours, 8760U);
    EXPECT_EQ(report.sparePercent, 100);
    EXPECT_EQ(report.spareThresholdPercent, 10);
    EXPECT_EQ(report.bytesWritten, ~std::uint64_t{0});
    EXPECT_EQ(report.mediaErrors, 0U);
    EXPECT_FALSE(report.percentUsed) << "a text is no percentage";
    EXPECT_FALSE(report.powerCycles) << "a negative count is none";
    EXPECT_EQ(report.bytesRead, 0U) << "left out while it is 0";
}

TEST_F(UDisks, InventsNoVerdict) {
    const auto with = [](QVariantMap properties, const QString& name, const QVariant& value) {
        value.isValid() ? void(properties[name] = value) : void(properties.remove(name));
        return properties;
    };
    const QVariant none;
    const std::pair<const char*, UDisksScript> cases[] = {
        {"no verdict", scriptOf(ata, with(ataProperties(), u"SmartFailing"_s, none), {})},
        {"verdict of a wrong type", scriptOf(ata, with(ataProperties(), u"SmartFailing"_s, 0), {})},
        {"switched off", scriptOf(ata, with(ataProperties(), u"SmartEnabled"_s, false), {})},
        {"not supported", scriptOf(ata, with(ataProperties(), u"SmartSupported"_s, false), {})},
        {"never read", scriptOf(ata, with(ataProperties(), u"SmartUpdated"_s, qulonglong{0}), {})},
        {"no time of reading", scriptOf(ata, with(ataProperties(), u"SmartUpdated"_s, u"now"_s), {})},
        {"NVMe without warning", scriptOf(nvme, with(nvmeProperties(), u"SmartCriticalWarning"_s, none), {})},
        {"NVMe warning of a wrong type",
         scriptOf(nvme, with(nvmeProperties(), u"SmartCriticalWarning"_s, 4), {})},
        {"another interface", scriptOf(u"org.freedesktop.UDisks2.Else"_s, ataProperties(), {})},
        {"another disk", UDisksScript{.objects = test::oneDrive(disk + 7, ata, ataProperties())}},
        {"nothing", UDisksScript{}},
        {"objects of a wrong type", UDisksScript{.insteadOfObjects = QStringList{u"none"_s}}},
        {"no answer within the limit", UDisksScript{.isMute = true}},
    };
    for (const auto& [what, script] : cases) {
        const SmartAnswer answer = ask(script);
        EXPECT_TRUE(answer.isEmpty()) << what;
        EXPECT_NE(answer.source.find("UDisks2"), std::string::npos) << what << ": " << answer.source;
    }
}

TEST_F(UDisks, SaysThatItIsTooOldForNvme) {
    const std::string tooOld = "UDisks2 2.9.4 does not read the health of NVMe drives (version 2.10 does)";
    const std::string nothing = "UDisks2 has no health figures of ";
    struct Case {
        const char* name;
        const char* version; ///< null: the service does not tell
        std::string expected;
    };
    const Case cases[] = {{"nvme0n1", "2.9.4", tooOld},
                          {"nvme0n1", "2.10.1", nothing + "nvme0n1"},
                          {"nvme0n1", "", nothing + "nvme0n1"},
                          {"nvme0n1", nullptr, nothing + "nvme0n1"},
                          {"sda", "2.9.4", nothing + "sda"}};
    for (const Case& each : cases) {
        const qulonglong number = each.name[0] == 'n' ? disk + 1 : disk;
        UDisksScript script{.objects = test::oneDrive(number, u"org.freedesktop.UDisks2.Else"_s, {})};
        if (each.version)
            script.objects[QDBusObjectPath(u"/org/freedesktop/UDisks2/Manager"_s)] = {
                {u"org.freedesktop.UDisks2.Manager"_s, {{u"Version"_s, QString(each.version)}}}};
        EXPECT_EQ(ask(std::move(script), each.name).source,
                  each.name + (" may only be asked by an administrator, and " + each.expected))
            << (each.version ? each.version : "no version");
    }
}

TEST(UDisksBus, IsNotUsedIfItAcceptsConnectionsAndNeverAnswers) {
    test::FakeMachine machine;
    addDisk(machine, "sda", disk, "scsi", {{"device/vendor", "ATA"}});
    test::FakeDrives drives;
    drives.drives["sda"].openError = EACCES;
    const std::string path = (machine.folder() / "bus").string();
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    path.copy(std::begin(address.sun_path), sizeof address.sun_path - 1);
    const FileDescriptor bus(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    ASSERT_EQ(bind(bus.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(bus.get(), 1), 0);
    SmartSources sources = sourcesOf(machine, drives);
    sources.serviceBus = "unix:path=" + path;
    sources.serviceLimit = std::chrono::milliseconds(10);
    EXPECT_EQ(answerOf("sda", sources).source,
              "sda may only be asked by an administrator, and UDisks2 does not answer");
}

/// The real service, with its state in temporary memory file systems.
TEST(RealUDisks, AnswersLikeTheFakeService) {
    const test::PrivateBus bus;
    const QString daemon = u"/usr/libexec/udisks2/udisksd"_s;
    if (bus.address().empty() || !QFile::exists(daemon))
        GTEST_SKIP() << "no dbus-daemon or no udisks2 here";
    QDBusConnection watching = QDBusConnection::connectToBus(QString::fromStdString(bus.address()), "watch");
    QDBusServiceWatcher watcher(u"org.freedesktop.UDisks2"_s, watching);
    QEventLoop untilItSpeaksOrEnds;
    QObject::connect(&watcher, &QDBusServiceWatcher::serviceRegistered, &untilItSpeaksOrEnds,
                     &QEventLoop::quit);
    QProcess service;
    QObject::connect(&service, &QProcess::finished, &untilItSpeaksOrEnds, &QEventLoop::quit);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SYSTEM_BUS_ADDRESS"_s, QString::fromStdString(bus.address()));
    service.setProcessEnvironment(environment);
    service.start(u"unshare"_s, {u"--mount"_s, u"sh"_s, u"-ec"_s,
                                 u"for folder in /run /var/lib; do mount -t tmpfs none $folder; done;"
                                 "mkdir /run/lock /var/lib/udisks2; exec "_s +
                                     daemon});
    untilItSpeaksOrEnds.exec();
    if (service.state() == QProcess::NotRunning)
        GTEST_SKIP() << "not allowed here: " << service.readAllStandardError().toStdString();

    const auto objects = UDisksBus(bus.address(), std::chrono::seconds(5)).objects();
    ASSERT_TRUE(objects);
    EXPECT_TRUE(objects->contains(QDBusObjectPath(u"/org/freedesktop/UDisks2/Manager"_s)));

    test::FakeMachine machine;
    addDisk(machine, "sda", makedev(240, 77), "scsi", {{"device/vendor", "ATA"}});
    test::FakeDrives drives;
    SmartSources sources = sourcesOf(machine, drives);
    sources.serviceBus = bus.address();
    EXPECT_EQ(answerOf("sda", sources).source,
              "sda is out of this process's reach, and UDisks2 knows no drive behind sda");
    QDBusConnection::disconnectFromBus("watch");
    service.terminate();
    service.waitForFinished();
}

} // namespace
} // namespace OndelCore::platform
