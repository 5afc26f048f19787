// Data recorded on a virtual machine: the bytes that root reads from drives, and the answers of UDisks2 2.9.4
// and 2.10.1 for the same drives.

#include "OndelCore/platform/FakeDrives.h"
#include "OndelCore/platform/FakeUDisks.h"
#include "Rows.h"

#include <QDateTime>

#include <sys/sysmacros.h>

namespace OndelCore::health {

namespace {

using namespace Qt::StringLiterals;
using platform::SmartPage;
using platform::SmartSources;

const qulonglong disk = makedev(8, 0);

void put(SmartPage& page, std::size_t offset, std::uint64_t value, std::size_t size) {
    for (std::size_t index = 0; index < size; ++index, value >>= 8U)
        page.at(offset + index) = static_cast<std::uint8_t>(value);
}

/// One drive, read directly by root and through the service by another user.
class SameDrive : public testing::Test {
protected:
    void SetUp() override {
        if (m_bus.address().empty())
            GTEST_SKIP() << "no dbus-daemon here";
    }
    std::string asRoot(const std::string& subsystem, const SmartPage& page) {
        test::FakeMachine machine;
        test::FakeDrives drives;
        addDisk(machine, "sda", disk, subsystem, {{"device/vendor", "ATA"}});
        drives.drives["sda"].page = page;
        return rowsOf(DiskHealth::smart(readSmart(test::mountFrom("sda"), sourcesOf(machine, drives))));
    }
    std::string asUser(const QString& interface, const QVariantMap& properties, const QVariant& attributes) {
        test::FakeMachine machine;
        test::FakeDrives drives;
        addDisk(machine, "sda", disk, interface.endsWith("Ata"_L1) ? "scsi" : "nvme",
                {{"device/vendor", "ATA"}});
        drives.drives["sda"].openError = EACCES;
        test::UDisksScript script{.objects = test::oneDrive(disk, interface, properties)};
        script.attributes = attributes;
        const test::FakeUDisks service(m_bus.address(), std::move(script));
        SmartSources sources = sourcesOf(machine, drives);
        sources.serviceBus = m_bus.address();
        return rowsOf(DiskHealth::smart(readSmart(test::mountFrom("sda"), sources)));
    }

private:
    test::PrivateBus m_bus;
};

/// An attribute's raw value, and the service's name, unit and figure for it.
struct AtaFixture {
    uchar number;
    std::uint64_t raw;
    const char* name;
    int unit;
    qlonglong pretty;
};

TEST_F(SameDrive, HasTheSameRowsForRootAndThroughUDisks2) {
    const std::pair<std::vector<AtaFixture>, const char*> drives[] = {
        {{{1, 0, "raw-read-error-rate", 1, 0},
          {5, 8589934592000, "reallocated-sector-count", 3, 0},
          {9, 0xd69600000218, "power-on-hours", 2, 1929600000},
          {12, 0, "power-cycle-count", 1, 0},
          {190, 0x45001f001f, "airflow-temperature-celsius", 4, 304150},
          {197, 4246863874, "current-pending-sector", 3, 4246863874}},
         "Power-on time 22 days, Power cycles 0, Reallocated sectors 0, Pending sectors 2 !, "},
        {{{9, 400000, "power-on-hours", 0, 1440000000000},
          {187, 12, "reported-uncorrect", 3, 12},
          {193, 0xff00a4e9, "load-cycle-count", 1, 4278232297},
          {194, 0x2600110026, "temperature-celsius-2", 4, 311150}},
         "Temperature 38 °C, Power-on time 45.7 years, Load cycles 42,217, Reported uncorrectable 12 !, "},
        {{{5, 0x100020003, "reallocated-sector-count", 3, 131075},
          {9, 0x01a2b300a1b2, "power-on-hours", 0, 10811387008800000},
          {10, 0x300000003, "spin-retry-count", 1, 12884901891},
          {198, 7, "offline-uncorrectable", 3, 7},
          {199, 0xffff0001e240, "udma-crc-error-count", 1, 281470681866816}},
         "Power-on time 4.7 years, Reallocated sectors 131,075 !, Uncorrectable sectors 7 !, Spin retries 3 "
         "!, "
         "Interface CRC errors 123,456 !, "},
        {{{5, 1000, "reallocated-sector-count", 3, 1000},
          {9, 5256000, "power-on-hours", 0, 18921600000000},
          {12, 0x1000004d2, "power-cycle-count", 1, 4294968530},
          {194, 120, "temperature-celsius-2", 0, 393150},
          {197, 0xfd22000c, "current-pending-sector", 3, 4246863884}},
         "Power cycles 1,234, Reallocated sectors 1,000 !, Pending sectors 12 !, "},
    };
    const QVariantMap properties{
        {u"SmartSupported"_s, true},     {u"SmartEnabled"_s, true},
        {u"SmartFailing"_s, false},      {u"SmartUpdated"_s, qulonglong{1795312289}},
        {u"SmartTemperature"_s, 304.15}, {u"SmartPowerOnSeconds"_s, qulonglong{1929600}}};
    for (const auto& [attributes, rows] : drives) {
        SmartPage page{};
        std::size_t offset = 2;
        QList<test::UDisksAtaRow> table;
        for (const AtaFixture& each : attributes) {
            put(page, offset, each.number, 1);
            put(page, offset + 5, each.raw, 6);
            offset += 12;
            table.append({each.number, each.unit, each.pretty, QString::fromLatin1(each.name)});
        }
        EXPECT_EQ(asRoot("scsi", page), rows);
        EXPECT_EQ(asUser(u"org.freedesktop.UDisks2.Drive.Ata"_s, properties, test::ataTable(table)), rows);
    }
}

TEST_F(SameDrive, LacksOnlyHostCommandsThroughUDisks2IfNvme) {
    SmartPage page{};
    put(page, 0, 5, 1);
    put(page, 1, 314, 2);
    put(page, 3, 7, 1);
    put(page, 4, 10, 1);
    put(page, 5, 91, 1);
    put(page, 32, 12345678, 8); // units read; none written
    put(page, 64, 59, 8);
    put(page, 80, 1, 8);
    put(page, 112, 321, 8);
    put(page, 128, 8760, 8);
    put(page, 144, 17, 8);
    put(page, 160, 3, 8);
    const std::string before =
        "Critical warning Spare below threshold, Reliability degraded !, Temperature 41 °C, Life used 91% !, "
        "Spare available 7% !, Spare threshold 10%, Power-on time 1.0 years, Power cycles 321, Unsafe "
        "shutdowns "
        "17, Data written 0.0 TB, Data read 6.3 TB, ";
    const std::string after = "Media errors 3 !, Error log entries 0, ";
    EXPECT_EQ(asRoot("nvme", page), before + "Host read commands 59, Host write commands 1, " + after);

    const QVariantMap properties{{u"SmartUpdated"_s, qulonglong{1795312289}},
                                 {u"SmartCriticalWarning"_s, QStringList{u"spare"_s, u"degraded"_s}},
                                 {u"SmartPowerOnHours"_s, qulonglong{8760}},
                                 {u"SmartTemperature"_s, QVariant::fromValue(ushort{314})}};
    const QVariantMap attributes{{u"avail_spare"_s, QVariant::fromValue(uchar{7})},
                                 {u"spare_thresh"_s, QVariant::fromValue(uchar{10})},
                                 {u"percent_used"_s, QVariant::fromValue(uchar{91})},
                                 {u"total_data_read"_s, qulonglong{6320987136000}},
                                 {u"ctrl_busy_time"_s, qulonglong{0}},
                                 {u"power_cycles"_s, qulonglong{321}},
                                 {u"unsafe_shutdowns"_s, qulonglong{17}},
                                 {u"media_errors"_s, qulonglong{3}},
                                 {u"num_err_log_entries"_s, qulonglong{0}}};
    EXPECT_EQ(asUser(u"org.freedesktop.UDisks2.NVMe.Controller"_s, properties, attributes), before + after);
}

} // namespace
} // namespace OndelCore::health
