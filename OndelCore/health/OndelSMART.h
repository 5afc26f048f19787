#pragma once

#include <cstdint>
#include <type_traits>

namespace OndelCore::health {

/// A drive's health as read: plain values, independent of the interface.
///
/// A `has_` field is 0 or 1 and says whether the fields up to the next `has_` are valid. Fields that do not
/// apply to the drive are zero.
struct OndelSMART {
    std::int32_t available = 0; ///< 1: the drive answered; 0: no other field is valid
    std::int32_t failing = 0;   ///< 1: the drive itself reports a failing condition
    char kind[8] = {};          ///< the interface: "NVMe" or "ATA", NUL-terminated

    std::int32_t has_temperature = 0;
    std::int32_t temperature = 0; ///< degrees Celsius, as reported

    std::int32_t has_percent_used = 0;
    std::int32_t percent_used = 0; ///< of the rated life; may exceed 100

    std::int32_t has_spare = 0;
    std::int32_t spare = 0;            ///< percent
    std::int32_t spare_threshold = 0;  ///< percent; the drive's own
    std::int32_t critical_warning = 0; ///< the NVMe critical-warning byte

    std::int32_t has_power_on_hours = 0;
    std::uint64_t power_on_hours = 0;

    std::int32_t has_power_cycles = 0;
    std::uint64_t power_cycles = 0;

    std::int32_t has_nvme_counters = 0;
    std::uint64_t unsafe_shutdowns = 0;
    std::uint64_t media_errors = 0;
    std::uint64_t error_log_entries = 0;

    std::int32_t has_data_written = 0;
    double data_written_tb = 0; ///< 10^12 bytes, written by the host

    std::int32_t has_data_read = 0;
    double data_read_tb = 0; ///< 10^12 bytes, read by the host

    std::int32_t has_host_commands = 0;
    std::uint64_t host_read_commands = 0;
    std::uint64_t host_write_commands = 0;

    std::int32_t has_busy_minutes = 0;
    std::uint64_t busy_minutes = 0; ///< time that the controller spent on commands

    std::int32_t has_reallocated = 0;
    std::uint64_t reallocated = 0; ///< ATA attribute 5

    std::int32_t has_pending = 0;
    std::uint64_t pending = 0; ///< ATA attribute 197

    std::int32_t has_uncorrectable = 0;
    std::uint64_t uncorrectable = 0; ///< ATA attribute 198

    std::int32_t has_reported_uncorrectable = 0;
    std::uint64_t reported_uncorrectable = 0; ///< ATA attribute 187

    std::int32_t has_crc_errors = 0;
    std::uint64_t crc_errors = 0; ///< ATA attribute 199

    std::int32_t has_spin_retries = 0;
    std::uint64_t spin_retries = 0; ///< ATA attribute 10

    std::int32_t has_load_cycles = 0;
    std::uint64_t load_cycles = 0; ///< ATA attribute 193

    bool operator==(const OndelSMART&) const = default;
};
static_assert(std::is_standard_layout_v<OndelSMART> && std::is_trivially_copyable_v<OndelSMART>);

/// Reads the health of the drives under a block device into `record`. Its previous content is lost.
///
/// `deviceName`: the device without "/dev/", NUL-terminated ("nvme0n1p2", "mapper/vault"). All whole disks
/// under it are read. The record is that of the first disk that reports a failing condition, else of the
/// first that answers. Owner: the caller, of `record`. Always returns 0.
///
/// Asks the user nothing, enables nothing in a drive and wakes no sleeping disk. Threads: any, several at
/// once; blocks on the drives, for a minute at most. Fails: `available` is 0.
extern "C" std::int32_t ondel_read_smart(const char* deviceName, OndelSMART* record);

} // namespace OndelCore::health
