#include "OndelCore/health/DiskHealth.h"

#include "OndelCore/health/HealthReading.h"
#include "OndelCore/health/OndelSMARTFields.h"
#include "OndelCore/health/SmartPages.h"
#include "OndelCore/health/SmartReader.h"
#include "OndelCore/platform/FakeDrives.h"
#include "OndelCore/platform/FakeUDisks.h"

#include <QDateTime>

#include <gtest/gtest.h>
#include <sys/sysmacros.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <sstream>

namespace OndelCore::health {

namespace {

/// "Temperature 38 °C, Life used 91% !, " with the note at the end.
std::string rowsOf(const DiskSMART& smart) {
    std::string text;
    for (const DiskSMART::Attribute& row : smart.attributes)
        text += row.label + ' ' + row.value + (row.warning ? " !, " : ", ");
    return text + smart.note;
}

constexpr auto largest = std::numeric_limits<std::uint64_t>::max();

OndelSMART nvme() {
    OndelSMART record;
    record.available = 1;
    std::strcpy(record.kind, "NVMe");
    return record;
}

TEST(DiskHealth, FormatsTheRowsInOrderAndInTheUsersLocale) {
    OndelSMART record = nvme();
    record.has_temperature = record.has_percent_used = record.has_spare = record.has_power_on_hours = 1;
    record.has_power_cycles = record.has_nvme_counters = record.has_data_written = record.has_data_read = 1;
    record.has_host_commands = record.has_busy_minutes = 1;
    record.temperature = -273;
    record.percent_used = 255;
    record.spare = 100;
    record.spare_threshold = 5;
    record.power_on_hours = 12345;
    record.power_cycles = 1234;
    record.unsafe_shutdowns = 12;
    record.data_written_tb = 18.449999;
    record.data_read_tb = static_cast<double>(largest) * 512000.0 / 1e12;
    record.host_read_commands = largest;
    record.host_write_commands = 0;
    record.busy_minutes = 2880;
    record.error_log_entries = 1000000;

    const DiskSMART smart = DiskHealth::smart(record);
    EXPECT_EQ(smart.status, DiskSMART::Status::verified);
    EXPECT_EQ(smart.kind, "NVMe");
    EXPECT_EQ(rowsOf(smart),
              "Temperature -273 °C, Life used 255% !, Spare available 100%, Spare threshold 5%, Power-on "
              "time 1.4 years, Power cycles 1,234, Unsafe shutdowns 12, Data written 18.4 TB, Data read "
              "9444732965739.3 TB, Host read commands 18,446,744,073,709,551,615, Host write commands 0, "
              "Controller busy 2 days, Media errors 0, Error log entries 1,000,000, ");

    setenv("LC_ALL", "de_DE.UTF-8", 1);
    const auto german = DiskHealth::smart(record).attributes;
    setenv("LC_ALL", "C.UTF-8", 1);
    EXPECT_EQ(german[5].value, "1.234");
    EXPECT_EQ(german[7].value, "18.4 TB") << "terabytes and years have a point in every locale";
}

TEST(DiskHealth, FormatsTheRowsOfAnAtaDrive) {
    OndelSMART record;
    record.available = record.failing = 1;
    std::strcpy(record.kind, "ATA");
    record.has_load_cycles = record.has_reallocated = record.has_pending = record.has_uncorrectable = 1;
    record.has_reported_uncorrectable = record.has_spin_retries = record.has_crc_errors = 1;
    record.reallocated = 1;
    record.uncorrectable = 2;
    record.spin_retries = 3;

    const DiskSMART smart = DiskHealth::smart(record);
    EXPECT_EQ(smart.status, DiskSMART::Status::failing);
    EXPECT_EQ(smart.kind, "ATA");
    EXPECT_EQ(rowsOf(smart),
              "Load cycles 0, Reallocated sectors 1 !, Pending sectors 0, Uncorrectable sectors 2 !, "
              "Reported uncorrectable 0, Spin retries 3 !, Interface CRC errors 0, ");
}

TEST(DiskHealth, WarnsByARuleForEachFigure) {
    using Change = std::function<void(OndelSMART&)>;
    const auto spare = [](int value, int threshold) {
        return [=](OndelSMART& r) { r.has_spare = 1, r.spare = value, r.spare_threshold = threshold; };
    };
    const auto used = [](int value) {
        return [=](OndelSMART& r) { r.has_percent_used = 1, r.percent_used = value; };
    };
    const auto warning = [](int value) { return [=](OndelSMART& r) { r.critical_warning = value; }; };
    const auto powerOn = [](std::uint64_t value) {
        return [=](OndelSMART& r) { r.has_power_on_hours = 1, r.power_on_hours = value; };
    };
    const std::vector<std::pair<Change, const char*>> cases{
        {[](OndelSMART&) {}, ""},
        {spare(10, 0), "Spare available 10%, "},
        {spare(9, 0), "Spare available 9% !, "},
        {spare(20, 25), "Spare available 20% !, Spare threshold 25%, "},
        {used(89), "Life used 89%, "},
        {used(90), "Life used 90% !, "},
        {warning(5), "Critical warning Spare below threshold, Reliability degraded !, "},
        {warning(26), "Critical warning Temperature, Read-only, Backup failed !, "},
        {warning(32), "Critical warning Unknown !, "},
        {warning(255), "Critical warning Spare below threshold, Temperature, Reliability degraded, "
                       "Read-only, Backup failed !, "},
        {powerOn(47), "Power-on time 47 h, "},
        {powerOn(48), "Power-on time 2 days, "},
        {powerOn(8759), "Power-on time 364 days, "},
        {powerOn(8760), "Power-on time 1.0 years, "},
        {powerOn(largest), "Power-on time 2105792702478259.2 years, "},
        {[](OndelSMART& r) { r.has_busy_minutes = 1, r.busy_minutes = 59; }, ""},
        {[](OndelSMART& r) { r.has_busy_minutes = 1, r.busy_minutes = 60; }, "Controller busy 1 h, "},
        {[](OndelSMART& record) { record.media_errors = 3; }, "Media errors 3 !, "},
        {[](OndelSMART& record) { record.unsafe_shutdowns = 3; }, "Unsafe shutdowns 3, "},
        {[](OndelSMART& record) { record.error_log_entries = 3; }, ""},
    };
    for (std::size_t index = 0; index < cases.size(); ++index) {
        OndelSMART record = nvme();
        cases[index].first(record);
        const DiskSMART smart = DiskHealth::smart(record);
        EXPECT_EQ(rowsOf(smart), cases[index].second) << "case " << index;
        EXPECT_EQ(smart.status, DiskSMART::Status::verified) << "rows never change the verdict";
    }
}

TEST(DiskHealth, HasTheWorstVerdictOfSeveralDisksAndNamesEach) {
    const auto disk = [](const char* name, const char* kind, bool isFailing) {
        SmartReading reading{.disk = name, .record = {}, .source = std::string("asked ") + name};
        if (!*kind) {
            reading.source = std::string(name) + " is asleep";
            return reading;
        }
        reading.record.available = reading.record.has_temperature = 1;
        reading.record.failing = isFailing;
        reading.record.temperature = 40;
        std::strcpy(reading.record.kind, kind);
        return reading;
    };
    const std::string sda = "sda · Status Verified, sda · Temperature 40 °C, ";
    const std::string sdb = "sdb · Status Failing !, sdb · Temperature 40 °C, ";
    const std::string twoOfThree = "Disks 2 of 3 disks answered, ";
    const auto good = disk("sda", "NVMe", false);
    const auto bad = disk("sdb", "ATA", true);
    const auto silent = disk("sdc", "", false);
    const std::string asleep = "2 of 3 disks answered: sdc is asleep";
    using Status = DiskSMART::Status;
    const struct {
        std::vector<SmartReading> disks;
        Status status;
        const char* kind;
        std::string rows; ///< and the note
    } cases[] = {
        {{}, Status::notSupported, "", "why"},
        {{silent}, Status::notSupported, "", "why"},
        {{silent, silent}, Status::notSupported, "", "why"},
        {{good}, Status::verified, "NVMe", "Temperature 40 °C, "},
        {{good, bad}, Status::failing, "NVMe, ATA", sda + sdb},
        {{bad, good}, Status::failing, "ATA, NVMe", sdb + sda},
        {{good, silent, good}, Status::verified, "NVMe", twoOfThree + sda + sda + asleep},
        {{silent, bad, good}, Status::failing, "ATA, NVMe", twoOfThree + sdb + sda + asleep},
    };
    for (const auto& [disks, status, kind, rows] : cases) {
        const DiskSMART smart = smartOf(SmartReadings{.disks = disks, .source = "why"});
        EXPECT_EQ(smart.status, status) << disks.size();
        EXPECT_EQ(smart.kind, kind);
        EXPECT_EQ(rowsOf(smart), rows);
    }
}

TEST(DiskHealth, IsAbsentWithoutADeviceUnderThePath) {
    for (const char* path : {"", "/proc", "/no/such/path", "/proc/self/mountinfo/below", "bytes \xff\n"})
        EXPECT_EQ(DiskHealth::read(path), std::nullopt) << path;

    OndelSMART record = nvme();
    EXPECT_EQ(ondel_read_smart("no-such-device", &record), 0);
    EXPECT_EQ(record, OndelSMART()) << "the previous content is lost";
}

/// Writes a page byte by byte at the standard's offsets.
class PageBuilder {
public:
    explicit PageBuilder(std::uint8_t filling = 0) { m_page.fill(filling); }

    PageBuilder& put(std::size_t offset, std::uint64_t value, std::size_t size) {
        for (std::size_t index = 0; index < size; ++index, value >>= 8U)
            m_page.at(offset + index) = static_cast<std::uint8_t>(value);
        return *this;
    }
    /// An entry of the ATA attribute table; flags, value and worst are noise and must be ignored.
    PageBuilder& attribute(std::size_t row, std::uint8_t number, std::uint64_t raw) {
        const std::size_t offset = 2 + 12 * row;
        return put(offset, number, 1)
            .put(offset + 1, 0x64640032, 4)
            .put(offset + 5, raw, 6)
            .put(offset + 11, 0xee, 1);
    }
    const SmartPage& page() const { return m_page; }

private:
    SmartPage m_page;
};

/// The names of nonzero fields, with the value unless it is 1.
std::string fieldsOf(const OndelSMART& record) {
    std::ostringstream text;
    forEachField(record, [&](std::string_view name, const auto& value) {
        if constexpr (std::is_arithmetic_v<std::remove_cvref_t<decltype(value)>>) {
            if (value == 1)
                text << name << ' ';
            else if (value != 0)
                text << name << '=' << value << ' ';
        }
    });
    return text.str();
}

OndelSMART decoded(void (*decode)(const SmartPage&, OndelSMART&), const PageBuilder& builder) {
    OndelSMART record;
    decode(builder.page(), record);
    return record;
}

TEST(SmartPages, DecodeEveryFieldOfAnNvmeHealthLog) {
    // The high half of each counter is set too and must be ignored.
    PageBuilder log;
    log.put(0, 0x85, 1).put(1, 311, 2).put(3, 100, 1).put(4, 10, 1).put(5, 255, 1);
    for (std::uint64_t counter = 0; counter < 10; ++counter)
        log.put(32 + 16 * counter, (1000 + counter) * 1000, 8).put(40 + 16 * counter, largest, 8);
    EXPECT_EQ(fieldsOf(decoded(decodeNvmeHealth, log)),
              "failing has_temperature temperature=38 has_percent_used percent_used=255 has_spare spare=100 "
              "spare_threshold=10 critical_warning=133 has_power_on_hours power_on_hours=1006000 "
              "has_power_cycles power_cycles=1005000 has_nvme_counters unsafe_shutdowns=1007000 "
              "media_errors=1008000 error_log_entries=1009000 has_data_written data_written_tb=0.512512 "
              "has_data_read data_read_tb=0.512 has_host_commands host_read_commands=1002000 "
              "host_write_commands=1003000 has_busy_minutes busy_minutes=1004000 ");

    const OndelSMART zeros = decoded(decodeNvmeHealth, PageBuilder(0));
    EXPECT_EQ(zeros.failing, 0);
    EXPECT_EQ(zeros.has_temperature, 1);
    EXPECT_EQ(zeros.temperature, -273);
    const OndelSMART ones = decoded(decodeNvmeHealth, PageBuilder(0xff));
    EXPECT_EQ(ones.failing, 1);
    EXPECT_EQ(ones.critical_warning, 255);
    EXPECT_EQ(ones.temperature, 65535 - 273);
    EXPECT_EQ(ones.error_log_entries, largest);
    EXPECT_DOUBLE_EQ(ones.data_read_tb, 18446744073709551615.0 * 512000.0 / 1e12);
}

TEST(SmartPages, DecodeTheKnownAtaAttributes) {
    constexpr std::uint64_t raw = 0x0c0ffe;
    PageBuilder data;
    std::size_t row = 0;
    for (const int number : {1, 5, 9, 10, 12, 187, 190, 193, 197, 198, 199})
        data.attribute(row++, static_cast<std::uint8_t>(number), raw);
    data.attribute(29, 194,
                   0x002600110026); // the last row counts; minimum and maximum are above the temperature
    EXPECT_EQ(fieldsOf(decoded(decodeAtaAttributes, data)),
              "has_temperature temperature=38 has_power_on_hours power_on_hours=790526 has_power_cycles "
              "power_cycles=790526 has_reallocated reallocated=790526 has_pending pending=790526 "
              "has_uncorrectable uncorrectable=790526 has_reported_uncorrectable "
              "reported_uncorrectable=790526 has_crc_errors crc_errors=790526 has_spin_retries "
              "spin_retries=790526 has_load_cycles load_cycles=790526 ");
}

TEST(SmartPages, ReadImpossibleValuesInFewerBits) {
    struct Case {
        std::uint8_t number;
        std::uint64_t raw;
        const char* fields;
    };
    const Case cases[] = {
        {5, 1000000, "has_reallocated reallocated=1000000 "},
        {5, 0x00000000fff8, "has_reallocated reallocated=65528 "},
        {5, 8589934592000, "has_reallocated "}, // 7D0h in the upper words
        {5, 0x000100020003, "has_reallocated reallocated=131075 "},
        {5, 0x000101020003, "has_reallocated reallocated=3 "},
        {5, 0xffffffffffff, ""},
        {9, 876000, "has_power_on_hours power_on_hours=876000 "},
        {9, 876001, ""},
        {9, 0xd69600000218, "has_power_on_hours power_on_hours=536 "},   // 26933759525 years in 48 bits
        {9, 0x01a2b300a1b2, "has_power_on_hours power_on_hours=41394 "}, // milliseconds above 24 bits
        {9, 5256000, ""},                                                // ten years in minutes
        {9, 0x00010000ffffff, ""},
        {10, 0x000300000003, "has_spin_retries spin_retries=3 "},
        {10, 0x0000ffff0000, "has_spin_retries "},
        {12, 0x0001000004d2, "has_power_cycles power_cycles=1234 "},
        {12, 0x0000abcd04d2, "has_power_cycles power_cycles=1234 "},
        {187, 0x0000ffffffff, ""},
        {193, 0x00000035a4e9, "has_load_cycles load_cycles=3515625 "},
        {193, 0x0000ff00a4e9, "has_load_cycles load_cycles=42217 "},
        {197, 4246863874, "has_pending pending=2 "},
        {198, 0x0000fd220000, "has_uncorrectable "},
        {199, 0x00000001e240, "has_crc_errors crc_errors=123456 "},
        {199, 0xffff0001e240, "has_crc_errors crc_errors=123456 "},
    };
    for (const Case& each : cases)
        EXPECT_EQ(fieldsOf(decoded(decodeAtaAttributes, PageBuilder().attribute(0, each.number, each.raw))),
                  each.fields)
            << int{each.number} << ": " << each.raw;
}

TEST(SmartPages, UseTheLaterOfTwoAtaAttributes) {
    PageBuilder data;
    data.attribute(0, 9, 100).attribute(3, 9, 7).attribute(4, 0, 5);
    data.attribute(5, 194, 40).attribute(6, 194, 120).attribute(7, 9, 876001);
    const OndelSMART record = decoded(decodeAtaAttributes, data);
    EXPECT_EQ(record.power_on_hours, 7U);
    EXPECT_EQ(record.temperature, 40) << "a reading that cannot be leaves the earlier one";
    EXPECT_EQ(fieldsOf(decoded(decodeAtaAttributes, PageBuilder(0xff))), "");
    for (const std::uint64_t outside : {0U, 120U, 255U, 0x2600U})
        EXPECT_EQ(decoded(decodeAtaAttributes, PageBuilder().attribute(0, 194, outside)).has_temperature, 0);
    for (const std::uint64_t inside : {1U, 119U})
        EXPECT_EQ(decoded(decodeAtaAttributes, PageBuilder().attribute(0, 194, inside)).has_temperature, 1);
}

TEST(SmartPages, MakeARecordOfEachKindOfAnswer) {
    using namespace platform;
    const auto record = [](auto blocks) { return recordOf({.blocks = std::move(blocks), .source = {}}); };
    EXPECT_EQ(recordOf({}), OndelSMART());
    EXPECT_EQ(DiskHealth::smart(record(AtaSmart{})), (DiskSMART{DiskSMART::Status::verified, "ATA", {}}));
    EXPECT_EQ(fieldsOf(record(AtaSmart{.thresholdExceeded = true, .page = {}})), "available failing ");
    EXPECT_EQ(
        fieldsOf(record(AtaSmartReport{.thresholdExceeded = false, .attributes = {{194, 41}, {250, 1}}})),
        "available has_temperature temperature=41 ");

    NvmeSmartReport partial;
    partial.criticalWarning = 4;
    partial.sparePercent = 3;
    partial.mediaErrors = 5;
    partial.bytesWritten = 2500000000000;
    EXPECT_EQ(fieldsOf(record(partial)),
              "available failing critical_warning=4 media_errors=5 has_data_written data_written_tb=2.5 ");
    EXPECT_STREQ(record(partial).kind, "NVMe");
}

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
        return rowsOf(smartOf(readSmart(test::mountFrom("sda"), sourcesOf(machine, drives))));
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
        return rowsOf(smartOf(readSmart(test::mountFrom("sda"), sources)));
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
