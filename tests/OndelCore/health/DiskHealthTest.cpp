#include "OndelCore/health/DiskHealth.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>

namespace OndelCore::health {

using Row = DiskSMART::Attribute;
using Rows = std::vector<Row>;

static std::ostream& operator<<(std::ostream& out, const Row& row) {
    return out << row.label << " = " << row.value << (row.warning ? " !" : "");
}

namespace {

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
    EXPECT_EQ(smart.attributes, (Rows{{"Temperature", "-273 °C", false},
                                      {"Life used", "255%", true},
                                      {"Spare available", "100%", false},
                                      {"Spare threshold", "5%", false},
                                      {"Power-on time", "1.4 years", false},
                                      {"Power cycles", "1,234", false},
                                      {"Unsafe shutdowns", "12", false},
                                      {"Data written", "18.4 TB", false},
                                      {"Data read", "9444732965739.3 TB", false},
                                      {"Host read commands", "18,446,744,073,709,551,615", false},
                                      {"Host write commands", "0", false},
                                      {"Controller busy", "2 days", false},
                                      {"Media errors", "0", false},
                                      {"Error log entries", "1,000,000", false}}));

    setenv("LC_ALL", "de_DE.UTF-8", 1);
    const Rows german = DiskHealth::smart(record).attributes;
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
    EXPECT_EQ(smart.attributes, (Rows{{"Load cycles", "0", false},
                                      {"Reallocated sectors", "1", true},
                                      {"Pending sectors", "0", false},
                                      {"Uncorrectable sectors", "2", true},
                                      {"Reported uncorrectable", "0", false},
                                      {"Spin retries", "3", true},
                                      {"Interface CRC errors", "0", false}}));
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
    const std::vector<std::pair<Change, Rows>> cases{
        {[](OndelSMART&) {}, {}},
        {spare(10, 0), {{"Spare available", "10%", false}}},
        {spare(9, 0), {{"Spare available", "9%", true}}},
        {spare(20, 25), {{"Spare available", "20%", true}, {"Spare threshold", "25%", false}}},
        {used(89), {{"Life used", "89%", false}}},
        {used(90), {{"Life used", "90%", true}}},
        {warning(5), {{"Critical warning", "Spare below threshold, Reliability degraded", true}}},
        {warning(26), {{"Critical warning", "Temperature, Read-only, Backup failed", true}}},
        {warning(32), {{"Critical warning", "Unknown", true}}},
        {warning(255),
         {{"Critical warning",
           "Spare below threshold, Temperature, Reliability degraded, Read-only, Backup failed", true}}},
        {powerOn(47), {{"Power-on time", "47 h", false}}},
        {powerOn(48), {{"Power-on time", "2 days", false}}},
        {powerOn(8759), {{"Power-on time", "364 days", false}}},
        {powerOn(8760), {{"Power-on time", "1.0 years", false}}},
        {powerOn(largest), {{"Power-on time", "2105792702478259.2 years", false}}},
        {[](OndelSMART& r) { r.has_busy_minutes = 1, r.busy_minutes = 59; }, {}},
        {[](OndelSMART& r) { r.has_busy_minutes = 1, r.busy_minutes = 60; },
         {{"Controller busy", "1 h", false}}},
        {[](OndelSMART& record) { record.media_errors = 3; }, {{"Media errors", "3", true}}},
        {[](OndelSMART& record) { record.unsafe_shutdowns = 3; }, {{"Unsafe shutdowns", "3", false}}},
        {[](OndelSMART& record) { record.error_log_entries = 3; }, {}},
    };
    for (std::size_t index = 0; index < cases.size(); ++index) {
        OndelSMART record = nvme();
        cases[index].first(record);
        const DiskSMART smart = DiskHealth::smart(record);
        EXPECT_EQ(smart.attributes, cases[index].second) << "case " << index;
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
    const Rows sda{{"sda · Status", "Verified", false}, {"sda · Temperature", "40 °C", false}};
    const Rows sdb{{"sdb · Status", "Failing", true}, {"sdb · Temperature", "40 °C", false}};
    const Row twoOfThree{"Disks", "2 of 3 disks answered", false};
    const auto joined = [](Rows first, const Rows& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    };
    const auto good = disk("sda", "NVMe", false);
    const auto bad = disk("sdb", "ATA", true);
    const auto silent = disk("sdc", "", false);
    const std::string asleep = "2 of 3 disks answered: sdc is asleep";
    using Status = DiskSMART::Status;
    const std::pair<std::vector<SmartReading>, DiskSMART> cases[] = {
        {{}, {Status::notSupported, "", {}, "why"}},
        {{silent}, {Status::notSupported, "", {}, "why"}},
        {{silent, silent}, {Status::notSupported, "", {}, "why"}},
        {{good}, {Status::verified, "NVMe", {{"Temperature", "40 °C", false}}, ""}},
        {{good, bad}, {Status::failing, "NVMe, ATA", joined(sda, sdb), ""}},
        {{bad, good}, {Status::failing, "ATA, NVMe", joined(sdb, sda), ""}},
        {{good, silent, good}, {Status::verified, "NVMe", joined({twoOfThree}, joined(sda, sda)), asleep}},
        {{silent, bad, good}, {Status::failing, "ATA, NVMe", joined({twoOfThree}, joined(sdb, sda)), asleep}},
    };
    for (const auto& [disks, expected] : cases) {
        const DiskSMART smart = DiskHealth::smart(SmartReadings{.disks = disks, .source = "why"});
        EXPECT_EQ(smart.status, expected.status) << disks.size();
        EXPECT_EQ(smart.kind, expected.kind);
        EXPECT_EQ(smart.attributes, expected.attributes);
        EXPECT_EQ(smart.note, expected.note);
    }
}

TEST(DiskHealth, IsAbsentWithoutADeviceUnderThePath) {
    for (const char* path : {"", "/proc", "/no/such/path", "/proc/self/mountinfo/below", "bytes \xff\n"})
        EXPECT_EQ(DiskHealth::read(path), std::nullopt) << path;

    OndelSMART record = nvme();
    EXPECT_EQ(ondel_read_smart("no-such-device", &record), 0);
    EXPECT_EQ(record, OndelSMART()) << "the previous content is lost";
}

} // namespace
} // namespace OndelCore::health
