#pragma once

/* For C as well as C++; in C++ everything is in the namespace OndelCore::health. */

#include "OndelCore/Export.h"

#include <stdint.h>

#ifdef __cplusplus
#define ONDEL_ZERO                                                                                           \
    {                                                                                                        \
    }
namespace OndelCore::health {
extern "C" {
#else
#define ONDEL_ZERO
#endif

/// A drive's health as read: plain values, independent of the interface.
///
/// A `has_` field is 0 or 1 and says whether the fields up to the next `has_` are valid. Fields that do not
/// apply to the drive are zero.
typedef struct OndelSMART {
    int32_t available ONDEL_ZERO; ///< 1: the drive answered; 0: no other field is valid
    int32_t failing ONDEL_ZERO;   ///< 1: the drive itself reports a failing condition
    char kind[8] ONDEL_ZERO;      ///< the interface: "NVMe" or "ATA", NUL-terminated

    int32_t has_temperature ONDEL_ZERO;
    int32_t temperature ONDEL_ZERO; ///< degrees Celsius, as reported

    int32_t has_percent_used ONDEL_ZERO;
    int32_t percent_used ONDEL_ZERO; ///< of the rated life; may exceed 100

    int32_t has_spare ONDEL_ZERO;
    int32_t spare ONDEL_ZERO;            ///< percent
    int32_t spare_threshold ONDEL_ZERO;  ///< percent; the drive's own
    int32_t critical_warning ONDEL_ZERO; ///< the NVMe critical-warning byte

    int32_t has_power_on_hours ONDEL_ZERO;
    uint64_t power_on_hours ONDEL_ZERO;

    int32_t has_power_cycles ONDEL_ZERO;
    uint64_t power_cycles ONDEL_ZERO;

    int32_t has_nvme_counters ONDEL_ZERO;
    uint64_t unsafe_shutdowns ONDEL_ZERO;
    uint64_t media_errors ONDEL_ZERO;
    uint64_t error_log_entries ONDEL_ZERO;

    int32_t has_data_written ONDEL_ZERO;
    double data_written_tb ONDEL_ZERO; ///< 10^12 bytes, written by the host

    int32_t has_data_read ONDEL_ZERO;
    double data_read_tb ONDEL_ZERO; ///< 10^12 bytes, read by the host

    int32_t has_host_commands ONDEL_ZERO;
    uint64_t host_read_commands ONDEL_ZERO;
    uint64_t host_write_commands ONDEL_ZERO;

    int32_t has_busy_minutes ONDEL_ZERO;
    uint64_t busy_minutes ONDEL_ZERO; ///< time that the controller spent on commands

    int32_t has_reallocated ONDEL_ZERO;
    uint64_t reallocated ONDEL_ZERO; ///< ATA attribute 5

    int32_t has_pending ONDEL_ZERO;
    uint64_t pending ONDEL_ZERO; ///< ATA attribute 197

    int32_t has_uncorrectable ONDEL_ZERO;
    uint64_t uncorrectable ONDEL_ZERO; ///< ATA attribute 198

    int32_t has_reported_uncorrectable ONDEL_ZERO;
    uint64_t reported_uncorrectable ONDEL_ZERO; ///< ATA attribute 187

    int32_t has_crc_errors ONDEL_ZERO;
    uint64_t crc_errors ONDEL_ZERO; ///< ATA attribute 199

    int32_t has_spin_retries ONDEL_ZERO;
    uint64_t spin_retries ONDEL_ZERO; ///< ATA attribute 10

    int32_t has_load_cycles ONDEL_ZERO;
    uint64_t load_cycles ONDEL_ZERO; ///< ATA attribute 193

#ifdef __cplusplus
    bool operator==(const OndelSMART&) const = default;
#endif
} OndelSMART;

/// Reads the health of the drives under a block device into `record`. Its previous content is lost.
///
/// `deviceName`: the device without "/dev/", NUL-terminated ("nvme0n1p2", "mapper/vault"). All whole disks
/// under it are read. The record is that of the first disk that reports a failing condition, else of the
/// first that answers. Owner: the caller, of `record`. Always returns 0.
///
/// Asks the user nothing, enables nothing in a drive and wakes no sleeping disk. Threads: any, several at
/// once; blocks on the drives, for a minute at most. Fails: `available` is 0, also without a name. Without a
/// record nothing happens.
ONDEL_PUBLIC int32_t ondel_read_smart(const char* deviceName, OndelSMART* record);

#undef ONDEL_ZERO
#ifdef __cplusplus
} // extern "C"
} // namespace OndelCore::health
#endif
