#pragma once

#include "OndelCore/platform/drives/linux/DriveCalls.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace OndelCore::platform {

/// What an ATA device leaves in its registers behind a command, as far as anyone here looks at it.
struct AtaRegisters {
    std::uint8_t error = 0;
    std::uint8_t status = 0;
    std::uint8_t count = 0;
    std::uint8_t lbaMid = 0;
    std::uint8_t lbaHigh = 0;

    /// The device turned the command down.
    bool isAborted() const { return status & 0x01U; }

    bool operator==(const AtaRegisters&) const = default;
};

/// The registers out of SCSI sense data, in either format: the ATA Status Return descriptor, or the fixed
/// format's information fields when the additional sense code says that they hold them (SAT-2, 12.2.5).
/// Fails: absent if the sense data holds none, or is cut short.
std::optional<AtaRegisters> ataRegisters(std::span<const std::uint8_t> sense);

/// A SCSI command's end.
struct ScsiAnswer {
    int error = 0;            ///< errno; not 0: the command did not reach the disk
    bool isGood = false;      ///< finished without a complaint, with all the data that was asked for
    std::size_t received = 0; ///< bytes
    std::optional<AtaRegisters> registers;
};

using Cdb6 = std::array<std::uint8_t, 6>;
using Cdb16 = std::array<std::uint8_t, 16>;

/// Sends a SCSI command that reads `data` (none: no data phase). Threads: any; blocks.
ScsiAnswer sendScsi(DriveCalls& calls, const FileDescriptor& drive, std::span<const std::uint8_t> command,
                    std::span<std::uint8_t> data);

} // namespace OndelCore::platform
