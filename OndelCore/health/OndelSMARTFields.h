#pragma once

#include "OndelCore/health/OndelSMART.h"

#include <string.h>

#include <string_view>

namespace OndelCore::health {

/// Calls `visit(name, value)` for every field in order of declaration; the values are `std::int32_t`,
/// `std::uint64_t`, `double`, and for `kind` a `std::string_view`.
template <typename Visitor>
void forEachField(const OndelSMART& record, Visitor&& visit) {
    visit("available", record.available);
    visit("failing", record.failing);
    visit("kind", std::string_view(record.kind, strnlen(record.kind, sizeof record.kind)));
    visit("has_temperature", record.has_temperature);
    visit("temperature", record.temperature);
    visit("has_percent_used", record.has_percent_used);
    visit("percent_used", record.percent_used);
    visit("has_spare", record.has_spare);
    visit("spare", record.spare);
    visit("spare_threshold", record.spare_threshold);
    visit("critical_warning", record.critical_warning);
    visit("has_power_on_hours", record.has_power_on_hours);
    visit("power_on_hours", record.power_on_hours);
    visit("has_power_cycles", record.has_power_cycles);
    visit("power_cycles", record.power_cycles);
    visit("has_nvme_counters", record.has_nvme_counters);
    visit("unsafe_shutdowns", record.unsafe_shutdowns);
    visit("media_errors", record.media_errors);
    visit("error_log_entries", record.error_log_entries);
    visit("has_data_written", record.has_data_written);
    visit("data_written_tb", record.data_written_tb);
    visit("has_data_read", record.has_data_read);
    visit("data_read_tb", record.data_read_tb);
    visit("has_host_commands", record.has_host_commands);
    visit("host_read_commands", record.host_read_commands);
    visit("host_write_commands", record.host_write_commands);
    visit("has_busy_minutes", record.has_busy_minutes);
    visit("busy_minutes", record.busy_minutes);
    visit("has_reallocated", record.has_reallocated);
    visit("reallocated", record.reallocated);
    visit("has_pending", record.has_pending);
    visit("pending", record.pending);
    visit("has_uncorrectable", record.has_uncorrectable);
    visit("uncorrectable", record.uncorrectable);
    visit("has_reported_uncorrectable", record.has_reported_uncorrectable);
    visit("reported_uncorrectable", record.reported_uncorrectable);
    visit("has_crc_errors", record.has_crc_errors);
    visit("crc_errors", record.crc_errors);
    visit("has_spin_retries", record.has_spin_retries);
    visit("spin_retries", record.spin_retries);
    visit("has_load_cycles", record.has_load_cycles);
    visit("load_cycles", record.load_cycles);
}

} // namespace OndelCore::health
