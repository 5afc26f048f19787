#include "OndelCore/platform/drives/linux/AtaPassThrough.h"

#include <scsi/sg.h>

#include <algorithm>
#include <vector>

namespace OndelCore::platform {

namespace {

using Bytes = std::span<const std::uint8_t>;

/// Descriptors follow the 8-byte header. Each has its length in byte 1 (SPC-4, 4.5.2).
std::optional<AtaRegisters> fromDescriptors(Bytes sense) {
    constexpr std::size_t head = 8;
    constexpr std::uint8_t ataStatusReturn = 0x09;
    constexpr std::size_t ataStatusReturnSize = 14;
    if (sense.size() < head)
        return std::nullopt;
    Bytes rest = sense.subspan(head, std::min<std::size_t>(sense[7], sense.size() - head));
    while (rest.size() >= 2) {
        const std::size_t size = std::min<std::size_t>(std::size_t{rest[1]} + 2, rest.size());
        if (rest[0] == ataStatusReturn && size >= ataStatusReturnSize)
            return AtaRegisters{.error = rest[3],
                                .status = rest[13],
                                .count = rest[5],
                                .lbaMid = rest[9],
                                .lbaHigh = rest[11]};
        rest = rest.subspan(size);
    }
    return std::nullopt;
}

/// Bytes 3 to 6: error, status, device, count; bytes 9 to 11: the three low LBA bytes.
std::optional<AtaRegisters> fromFixedFormat(Bytes sense) {
    constexpr std::size_t untilSenseCode = 14;
    constexpr std::uint8_t passThroughInformationAvailable = 0x1d;
    if (sense.size() < untilSenseCode || sense[12] != 0 || sense[13] != passThroughInformationAvailable)
        return std::nullopt;
    return AtaRegisters{
        .error = sense[3], .status = sense[4], .count = sense[6], .lbaMid = sense[10], .lbaHigh = sense[11]};
}

} // namespace

std::optional<AtaRegisters> ataRegisters(Bytes sense) {
    if (sense.empty())
        return std::nullopt;
    switch (sense[0] & 0x7fU) {
    case 0x72:
        return fromDescriptors(sense);
    case 0x70:
        return fromFixedFormat(sense);
    default: // deferred errors belong to an earlier command
        return std::nullopt;
    }
}

ScsiAnswer sendScsi(DriveCalls& calls, const FileDescriptor& drive, Bytes command,
                    std::span<std::uint8_t> data) {
    std::vector<std::uint8_t> cdb(command.begin(), command.end());
    std::array<std::uint8_t, 64> sense{};
    sg_io_hdr_t io{};
    io.interface_id = 'S';
    io.dxfer_direction = data.empty() ? SG_DXFER_NONE : SG_DXFER_FROM_DEV;
    io.cmdp = cdb.data();
    io.cmd_len = static_cast<unsigned char>(cdb.size());
    io.dxferp = data.data();
    io.dxfer_len = static_cast<unsigned>(data.size());
    io.sbp = sense.data();
    io.mx_sb_len = sense.size();
    io.timeout = static_cast<unsigned>(driveCommandLimit.count());

    const int result = calls.control(drive, SG_IO, &io);
    if (result < 0)
        return {.error = -result, .registers = {}};
    const auto missing = static_cast<std::size_t>(std::max(io.resid, 0));
    ScsiAnswer answer;
    answer.received = data.size() - std::min(missing, data.size());
    answer.isGood = (io.info & SG_INFO_OK_MASK) == SG_INFO_OK && io.status == 0 && io.host_status == 0 &&
                    answer.received == data.size();
    if (io.host_status == 0)
        answer.registers =
            ataRegisters(Bytes(sense).first(std::min<std::size_t>(io.sb_len_wr, sense.size())));
    return answer;
}

} // namespace OndelCore::platform
