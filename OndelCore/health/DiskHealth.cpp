#include "OndelCore/health/DiskHealth.h"

#include "OndelCore/health/HealthReading.h"
#include "OndelCore/platform/process/LocaleNumbers.h"

#include <string.h>

#include <array>
#include <charconv>
#include <string_view>

namespace OndelCore::health {

namespace {

using Attribute = DiskSMART::Attribute;

/// One decimal, with a point in every locale; printf and streams depend on the process's locale.
std::string oneDecimal(double value) {
    std::array<char, 400> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 1).ptr;
    return std::string(text.data(), end);
}

std::string hours(std::uint64_t count) {
    constexpr std::uint64_t twoDays = 48;
    constexpr std::uint64_t year = 8760;
    if (count < twoDays)
        return std::to_string(count) + " h";
    const std::uint64_t days = count / 24;
    if (count < year)
        return std::to_string(days) + " days";
    return oneDecimal(static_cast<double>(days) / 365.0) + " years";
}

/// The bits defined by NVM Express 1.0; later ones have no text.
std::string criticalWarning(std::int32_t value) {
    constexpr std::array<std::string_view, 5> words{"Spare below threshold", "Temperature",
                                                    "Reliability degraded", "Read-only", "Backup failed"};
    std::string text;
    for (std::size_t bit = 0; bit < words.size(); ++bit) {
        if (!(static_cast<std::uint32_t>(value) & (1U << bit)))
            continue;
        text += text.empty() ? "" : ", ";
        text += words[bit];
    }
    return text.empty() ? "Unknown" : text;
}

/// Collects the rows of known figures.
class Rows {
public:
    void add(bool known, std::string_view label, std::string value, bool warning = false) {
        if (known)
            m_rows.push_back({std::string(label), std::move(value), warning});
    }
    void count(bool known, std::string_view label, std::uint64_t value) {
        add(known, label, platform::groupedNumber(value));
    }
    /// A count of errors: any is a concern.
    void mishaps(bool known, std::string_view label, std::uint64_t value) {
        add(known, label, platform::groupedNumber(value), value != 0);
    }
    std::vector<Attribute> take() { return std::move(m_rows); }

private:
    std::vector<Attribute> m_rows;
};

void addCondition(const OndelSMART& record, Rows& rows) {
    constexpr std::int32_t wornOut = 90;
    constexpr std::int32_t usualSpareThreshold = 10;
    const std::int32_t spareLimit = record.spare_threshold > 0 ? record.spare_threshold : usualSpareThreshold;
    const auto percent = [](std::int32_t value) { return std::to_string(value) + "%"; };

    rows.add(record.critical_warning != 0, "Critical warning", criticalWarning(record.critical_warning),
             true);
    rows.add(record.has_temperature, "Temperature", std::to_string(record.temperature) + " °C");
    rows.add(record.has_percent_used, "Life used", percent(record.percent_used),
             record.percent_used >= wornOut);
    rows.add(record.has_spare, "Spare available", percent(record.spare), record.spare < spareLimit);
    rows.add(record.has_spare && record.spare_threshold > 0, "Spare threshold",
             percent(record.spare_threshold));
}

void addUse(const OndelSMART& record, Rows& rows) {
    const auto terabytes = [](double value) { return oneDecimal(value) + " TB"; };

    rows.add(record.has_power_on_hours, "Power-on time", hours(record.power_on_hours));
    rows.count(record.has_power_cycles, "Power cycles", record.power_cycles);
    rows.count(record.has_load_cycles, "Load cycles", record.load_cycles);
    rows.count(record.has_nvme_counters || record.unsafe_shutdowns != 0, "Unsafe shutdowns",
               record.unsafe_shutdowns);
    rows.add(record.has_data_written, "Data written", terabytes(record.data_written_tb));
    rows.add(record.has_data_read, "Data read", terabytes(record.data_read_tb));
    rows.count(record.has_host_commands, "Host read commands", record.host_read_commands);
    rows.count(record.has_host_commands, "Host write commands", record.host_write_commands);
    rows.add(record.has_busy_minutes && record.busy_minutes >= 60, "Controller busy",
             hours(record.busy_minutes / 60));
}

void addErrors(const OndelSMART& record, Rows& rows) {
    rows.mishaps(record.has_reallocated, "Reallocated sectors", record.reallocated);
    rows.mishaps(record.has_pending, "Pending sectors", record.pending);
    rows.mishaps(record.has_uncorrectable, "Uncorrectable sectors", record.uncorrectable);
    rows.mishaps(record.has_reported_uncorrectable, "Reported uncorrectable", record.reported_uncorrectable);
    rows.mishaps(record.has_spin_retries, "Spin retries", record.spin_retries);
    rows.mishaps(record.has_crc_errors, "Interface CRC errors", record.crc_errors);
    rows.mishaps(record.has_nvme_counters || record.media_errors != 0, "Media errors", record.media_errors);
    rows.count(record.has_nvme_counters, "Error log entries", record.error_log_entries);
}

/// Adds one disk's verdict and rows to the result.
void addVerdict(DiskSMART one, const SmartReading& reading, bool isAlone, DiskSMART& all) {
    const bool isFailing = one.status == DiskSMART::Status::failing;
    if (isFailing || all.status == DiskSMART::Status::notSupported)
        all.status = one.status;
    if (all.kind.find(one.kind) == std::string::npos)
        all.kind += (all.kind.empty() ? "" : ", ") + one.kind;
    const std::string prefix = isAlone ? "" : reading.disk + " · ";
    if (!isAlone)
        all.attributes.push_back({prefix + "Status", isFailing ? "Failing" : "Verified", isFailing});
    for (Attribute& row : one.attributes)
        all.attributes.push_back({prefix + row.label, std::move(row.value), row.warning});
}

/// Inserts a first row with the number of disks that answered, and returns its text.
std::string addCount(std::size_t answered, std::size_t disks, DiskSMART& all) {
    std::string count = std::to_string(answered) + " of " + std::to_string(disks) + " disks answered";
    all.attributes.insert(all.attributes.begin(), {"Disks", count, false});
    return count;
}

} // namespace

HealthReading readHealth(const std::filesystem::path& mountPath, const platform::SystemSources& sources) {
    const auto mount = platform::mountOfPathIn(sources.mountTable.mounts(), mountPath, sources.patience);
    if (!mount || !platform::sourceOfMount(*mount, sources.sysfs).starts_with("/dev/"))
        return {.smart = std::nullopt, .disks = {}, .source = "no device is behind this path"};
    SmartReadings readings = readSmart(*mount, {.system = sources});
    DiskSMART health = smartOf(readings);
    return {
        .smart = std::move(health), .disks = std::move(readings.disks), .source = std::move(readings.source)};
}

std::optional<DiskSMART> DiskHealth::read(const std::filesystem::path& mountPath) {
    return readHealth(mountPath).smart;
}

DiskSMART smartOf(const SmartReadings& readings) {
    DiskSMART all;
    std::size_t answered = 0;
    std::string silent;
    for (const SmartReading& reading : readings.disks) {
        if (reading.record.available) {
            ++answered;
            addVerdict(DiskHealth::smart(reading.record), reading, readings.disks.size() == 1, all);
        } else {
            silent += (silent.empty() ? "" : "; ") + reading.source;
        }
    }
    if (answered == 0)
        all.note = readings.source;
    else if (answered < readings.disks.size())
        all.note = addCount(answered, readings.disks.size(), all) + ": " + silent;
    return all;
}

DiskSMART DiskHealth::smart(const OndelSMART& record) {
    Rows rows;
    addCondition(record, rows);
    addUse(record, rows);
    addErrors(record, rows);
    return DiskSMART{.status = record.failing ? DiskSMART::Status::failing : DiskSMART::Status::verified,
                     .kind = std::string(record.kind, strnlen(record.kind, sizeof record.kind)),
                     .attributes = rows.take()};
}

} // namespace OndelCore::health
