#include "OndelCore/health/SmartReader.h"

#include "OndelCore/health/SmartPages.h"

#include <optional>
#include <string_view>

namespace OndelCore::health {

namespace {

void open(std::string_view kind, OndelSMART& record) {
    record.available = 1;
    kind.copy(record.kind, sizeof record.kind - 1);
}

template <typename Value>
void keep(const std::optional<Value>& value, std::int32_t& has, Value& field) {
    has = value.has_value();
    field = value.value_or(Value{});
}

void keepTerabytes(const std::optional<std::uint64_t>& bytes, std::int32_t& has, double& field) {
    has = bytes.has_value();
    field = static_cast<double>(bytes.value_or(0)) / 1000000000000.0;
}

/// Fills the record from each kind of answer.
struct Filler {
    OndelSMART& record;

    void operator()(std::monostate) const {}

    void operator()(const platform::NvmeSmart& smart) const {
        open("NVMe", record);
        decodeNvmeHealth(smart.page, record);
    }

    void operator()(const platform::AtaSmart& smart) const {
        open("ATA", record);
        record.failing = smart.thresholdExceeded.value_or(false);
        if (smart.page)
            decodeAtaAttributes(*smart.page, record);
    }

    void operator()(const platform::NvmeSmartReport& report) const {
        open("NVMe", record);
        record.failing = report.criticalWarning != 0;
        record.critical_warning = report.criticalWarning;
        keep(report.temperatureCelsius, record.has_temperature, record.temperature);
        keep(report.percentUsed, record.has_percent_used, record.percent_used);
        record.has_spare = report.sparePercent && report.spareThresholdPercent;
        if (record.has_spare) {
            record.spare = *report.sparePercent;
            record.spare_threshold = *report.spareThresholdPercent;
        }
        keep(report.powerOnHours, record.has_power_on_hours, record.power_on_hours);
        keep(report.powerCycles, record.has_power_cycles, record.power_cycles);
        record.has_nvme_counters = report.unsafeShutdowns && report.mediaErrors && report.errorLogEntries;
        record.unsafe_shutdowns = report.unsafeShutdowns.value_or(0);
        record.media_errors = report.mediaErrors.value_or(0);
        record.error_log_entries = report.errorLogEntries.value_or(0);
        keepTerabytes(report.bytesWritten, record.has_data_written, record.data_written_tb);
        keepTerabytes(report.bytesRead, record.has_data_read, record.data_read_tb);
        keep(report.busyMinutes, record.has_busy_minutes, record.busy_minutes);
    }

    void operator()(const platform::AtaSmartReport& report) const {
        open("ATA", record);
        record.failing = report.thresholdExceeded;
        for (const auto& [number, figure] : report.attributes)
            keepAtaAttribute(number, figure, record);
    }
};

} // namespace

OndelSMART recordOf(const platform::SmartAnswer& answer) {
    OndelSMART record;
    std::visit(Filler{record}, answer.blocks);
    return record;
}

SmartReadings readSmart(const platform::Mount& mount, const platform::SmartSources& sources) {
    const platform::DiskAnswers answers = platform::smartOfMount(mount, sources);
    SmartReadings readings{.disks = {}, .source = answers.obstacle};
    for (const auto& [disk, answer] : answers.disks) {
        readings.disks.push_back({.disk = disk, .record = recordOf(answer), .source = answer.source});
        readings.source += (readings.source.empty() ? "" : "; ") + answer.source;
    }
    return readings;
}

std::int32_t ondel_read_smart(const char* deviceName, OndelSMART* record) {
    if (!record)
        return 0;
    *record = {};
    if (!deviceName)
        return 0;
    const platform::BlockStack stack = platform::blockStackNamed("/dev/" + std::string(deviceName));
    for (const auto& [disk, answer] : platform::smartOfDisks(stack)) {
        const OndelSMART found = recordOf(answer);
        if (!record->available || (!record->failing && found.failing))
            *record = found;
    }
    return 0;
}

} // namespace OndelCore::health
