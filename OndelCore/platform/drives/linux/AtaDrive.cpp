#include "OndelCore/platform/drives/linux/AtaPassThrough.h"
#include "OndelCore/platform/drives/linux/DriveBus.h"
#include "OndelCore/platform/drives/linux/DriveReaders.h"

#include <algorithm>
#include <cerrno>

namespace OndelCore::platform {

namespace {

/// The commands in the 16-byte form of ATA PASS-THROUGH (SAT-2, 12.2.2). Those without data ask for the
/// registers by CK_COND. The SMART commands carry the signature 4Fh, C2h in LBA mid and high.
constexpr Cdb16 checkPowerMode{0x85, 0x06, 0x20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xe5, 0};
constexpr Cdb16 smartReturnStatus{0x85, 0x06, 0x20, 0, 0xda, 0, 0, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0};
constexpr Cdb16 smartReadData{0x85, 0x08, 0x0e, 0, 0xd0, 0, 0x01, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0};

/// The page of supported vital product data pages (SPC-4, 7.8.13).
constexpr Cdb6 inquireSupportedPages{0x12, 0x01, 0x00, 0x00, 0xff, 0x00};

/// Whether the standard list of product data pages holds "ATA Information" (SAT-2, 10.3.5): so declares a
/// translator that ATA commands pass through it. Answered by the translator; a sleeping disk stays asleep.
bool listsAtaInformation(DriveCalls& calls, const FileDescriptor& drive) {
    constexpr std::uint8_t ataInformation = 0x89;
    constexpr std::size_t head = 4;
    std::array<std::uint8_t, 255> page{};
    const std::size_t received = sendScsi(calls, drive, inquireSupportedPages, page).received;
    if (received < head || page[1] != 0x00) // a device without such pages may answer with something else
        return false;
    const std::size_t count = std::min<std::size_t>(std::size_t{page[2]} << 8U | page[3], received - head);
    const auto pages = std::span(page).subspan(head, count);
    return std::find(pages.begin(), pages.end(), ataInformation) != pages.end();
}

/// Whether the system already knows that the disk takes ATA commands, told by the translator's vendor text,
/// by the page that the kernel keeps, or by the device database, which asked the disk
/// itself.
bool isKnownAsAta(const BlockDevice& disk, const DevicePropertySource& database) {
    if (hasAtaForVendor(disk))
        return true;
    std::error_code ignored;
    if (std::filesystem::exists(disk.folder / "device/vpd_pg89", ignored))
        return true;
    return propertyIn(database(disk.number), "ID_ATA") == "1";
}

/// Sticks and card readers are not asked for pages that many of them stumble over.
bool mayBeAsked(const BlockDevice& disk) { return readNumber(disk.folder / "removable").value_or(1) == 0; }

/// Standby by the count that CHECK POWER MODE leaves (ACS-3, 7.3.2): spun down, on the way there, or spun
/// down behind a non-volatile cache. A drive that somebody sent to the deeper SLEEP hears no command at all:
/// the kernel resets its link before it passes this one on, which takes the drive to standby.
bool isAsleep(const AtaRegisters& registers) {
    return !registers.isAborted() &&
           (registers.count == 0x00 || registers.count == 0x01 || registers.count == 0x40);
}

/// The verdict by the signature that SMART RETURN STATUS leaves (ACS-3, 7.48.7). Absent: none was given.
std::optional<bool> thresholdExceeded(const AtaRegisters& registers) {
    if (registers.isAborted())
        return std::nullopt;
    if (registers.lbaMid == 0x4f && registers.lbaHigh == 0xc2)
        return false;
    if (registers.lbaMid == 0xf4 && registers.lbaHigh == 0x2c)
        return true;
    return std::nullopt;
}

DriveReply nothing(std::string reason) { return {.answer = {.blocks = {}, .source = std::move(reason)}}; }

DriveReply askSmart(const BlockDevice& disk, DriveCalls& calls, const FileDescriptor& drive) {
    const ScsiAnswer power = sendScsi(calls, drive, checkPowerMode, {});
    if (power.error)
        return unreachable(disk, power.error);
    if (!power.registers)
        return nothing(disk.name + " does not tell whether it sleeps, so it was left alone");
    if (isAsleep(*power.registers))
        return nothing(disk.name + " is asleep and was left alone");

    const ScsiAnswer status = sendScsi(calls, drive, smartReturnStatus, {});
    if (status.error)
        return unreachable(disk, status.error);
    AtaSmart smart;
    if (status.registers)
        smart.thresholdExceeded = thresholdExceeded(*status.registers);
    if (!smart.thresholdExceeded)
        return nothing(disk.name + " has no S.M.A.R.T., or it is switched off");

    SmartPage page{};
    if (sendScsi(calls, drive, smartReadData, page).isGood)
        smart.page = page;
    return {.answer = {.blocks = smart,
                       .source = "ATA S.M.A.R.T. of " + disk.name +
                                 (smart.page ? "" : ", which gave its verdict without figures")}};
}

} // namespace

DriveReply readAtaDrive(const BlockDevice& disk, DriveCalls& calls, const DevicePropertySource& database) {
    if (isSuspended(disk))
        return nothing(disk.name + " is asleep and was left alone");
    const bool isKnown = isKnownAsAta(disk, database);
    if (!isKnown && !mayBeAsked(disk))
        return nothing(disk.name + " does not pass S.M.A.R.T. commands on");
    const FileDescriptor drive = calls.open(disk);
    if (!drive)
        return unreachable(disk, errno);
    if (!isKnown && !listsAtaInformation(calls, drive))
        return nothing(disk.name + " does not pass S.M.A.R.T. commands on");
    return askSmart(disk, calls, drive);
}

} // namespace OndelCore::platform
