#include "OndelCore/platform/drives/linux/AtaPassThrough.h"
#include "OndelCore/platform/drives/linux/DriveBus.h"
#include "OndelCore/platform/drives/linux/DriveReaders.h"

#include <algorithm>
#include <cerrno>

namespace OndelCore::platform {

namespace {

/// Commands as ATA PASS-THROUGH (16) (SAT-2, 12.2.2). Those without data request the registers with CK_COND.
/// SMART commands have the signature 4Fh, C2h in LBA mid and high.
constexpr Cdb16 checkPowerMode{0x85, 0x06, 0x20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xe5, 0};
constexpr Cdb16 smartReturnStatus{0x85, 0x06, 0x20, 0, 0xda, 0, 0, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0};
constexpr Cdb16 smartReadData{0x85, 0x08, 0x0e, 0, 0xd0, 0, 0x01, 0, 0, 0, 0x4f, 0, 0xc2, 0, 0xb0, 0};

/// The page of supported vital product data pages (SPC-4, 7.8.13).
constexpr Cdb6 inquireSupportedPages{0x12, 0x01, 0x00, 0x00, 0xff, 0x00};

/// Whether the list of vital product data pages has "ATA Information" (SAT-2, 10.3.5), with which a
/// translator declares that it passes ATA commands. The translator itself answers, so a sleeping disk is not
/// woken.
bool listsAtaInformation(DriveCalls& calls, const FileDescriptor& drive) {
    constexpr std::uint8_t ataInformation = 0x89;
    constexpr std::size_t head = 4;
    std::array<std::uint8_t, 255> page{};
    const std::size_t received = sendScsi(calls, drive, inquireSupportedPages, page).received;
    if (received < head || page[1] != 0x00) // a device without such pages may return other data
        return false;
    const std::size_t count = std::min<std::size_t>(std::size_t{page[2]} << 8U | page[3], received - head);
    const auto pages = std::span(page).subspan(head, count);
    return std::find(pages.begin(), pages.end(), ataInformation) != pages.end();
}

/// Whether the system knows already that the disk takes ATA commands: from the translator's vendor text, the
/// page that the kernel keeps, or the device database, whose rules asked the disk.
bool isKnownAsAta(const BlockDevice& disk, const DevicePropertySource& database) {
    if (hasAtaForVendor(disk))
        return true;
    std::error_code ignored;
    if (std::filesystem::exists(disk.folder / "device/vpd_pg89", ignored))
        return true;
    return propertyIn(database(disk.number), "ID_ATA") == "1";
}

/// Sticks and card readers are not asked for data pages: some of them fail on it.
bool mayBeAsked(const BlockDevice& disk) { return readNumber(disk.folder / "removable").value_or(1) == 0; }

/// Standby according to the count register after CHECK POWER MODE (ACS-3, 7.3.2): spun down, spinning down,
/// or spun down with a non-volatile cache. A drive in SLEEP mode accepts no command: the kernel resets its
/// link first, which takes it to standby.
bool isAsleep(const AtaRegisters& registers) {
    return !registers.isAborted() &&
           (registers.count == 0x00 || registers.count == 0x01 || registers.count == 0x40);
}

/// The verdict from the signature after SMART RETURN STATUS (ACS-3, 7.48.7). Absent: no verdict.
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
