#pragma once

#include "OndelCore/platform/drives/linux/DriveCalls.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace OndelCore::platform {

/// The registers of an ATA device after a command; only those that are used.
struct AtaRegisters {
    std::uint8_t error = 0;
    std::uint8_t status = 0;
    std::uint8_t count = 0;
    std::uint8_t lbaMid = 0;
    std::uint8_t lbaHigh = 0;

    /// The device aborted the command.
    bool isAborted() const { return status & 0x01U; }

    bool operator==(const AtaRegisters&) const = default;
};

/// Decodes the registers in SCSI sense data of either format: the ATA Status Return descriptor, or the
/// information fields of the fixed format if the additional sense code declares them (SAT-2, 12.2.5). Fails:
/// absent if there are none or the data is truncated.
std::optional<AtaRegisters> ataRegisters(std::span<const std::uint8_t> sense);

/// The result of a SCSI command.
struct ScsiAnswer {
    int error = 0;            ///< errno; not 0: the command did not reach the disk
    bool isGood = false;      ///< completed without a check condition, with all requested data
    std::size_t received = 0; ///< bytes
    std::optional<AtaRegisters> registers;
};

using Cdb6 = std::array<std::uint8_t, 6>;
using Cdb16 = std::array<std::uint8_t, 16>;

/// Sends a SCSI command that reads `data` (none: no data phase). Threads: any; blocks.
ScsiAnswer sendScsi(DriveCalls& calls, const FileDescriptor& drive, std::span<const std::uint8_t> command,
                    std::span<std::uint8_t> data);

} // namespace OndelCore::platform
