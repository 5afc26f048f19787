#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/SystemSources.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace OndelCore::platform {

class DriveCalls;

/// A block of health data in the drive's own format.
using SmartPage = std::array<std::uint8_t, 512>;

/// The answer of an NVMe drive: its SMART / Health Information log page.
struct NvmeSmart {
    SmartPage page{};
};

/// The answer of an ATA drive. Absent: the command failed.
struct AtaSmart {
    std::optional<bool> thresholdExceeded; ///< its verdict: SMART RETURN STATUS
    std::optional<SmartPage> page;         ///< its figures: SMART READ DATA
};

/// The answer of a system service for an NVMe drive. Absent: unknown to the service.
struct NvmeSmartReport {
    std::uint8_t criticalWarning = 0; ///< the bits of the health log's first byte
    std::optional<std::int32_t> temperatureCelsius;
    std::optional<std::int32_t> percentUsed;
    std::optional<std::int32_t> sparePercent;
    std::optional<std::int32_t> spareThresholdPercent;
    std::optional<std::uint64_t> powerOnHours;
    std::optional<std::uint64_t> powerCycles;
    std::optional<std::uint64_t> unsafeShutdowns;
    std::optional<std::uint64_t> mediaErrors;
    std::optional<std::uint64_t> errorLogEntries;
    std::optional<std::uint64_t> busyMinutes;
    std::optional<std::uint64_t> bytesWritten;
    std::optional<std::uint64_t> bytesRead;
};

/// The answer of a system service for an ATA drive. The attributes are raw values of the drive, including
/// other figures that some makers pack into the upper bytes.
struct AtaSmartReport {
    bool thresholdExceeded = false;
    std::map<std::uint8_t, std::uint64_t> attributes;
};

struct SmartAnswer {
    /// std::monostate: no reader has a verdict.
    std::variant<std::monostate, NvmeSmart, AtaSmart, NvmeSmartReport, AtaSmartReport> blocks;
    /// One line of text: which reader answered, or why none did.
    std::string source;

    bool isEmpty() const { return std::holds_alternative<std::monostate>(blocks); }
};

/// The answer of one whole disk.
struct DiskAnswer {
    std::string disk; ///< its name below "/dev"
    SmartAnswer answer;
};

struct DiskAnswers {
    std::vector<DiskAnswer> disks; ///< in the order of BlockStack::wholeDisks
    std::string obstacle;          ///< one line of text: why there are no disks
};

/// Where the answers come from: the real system, unless a caller hands in something else.
struct SmartSources {
    SystemSources system;
    /// Sends the commands to the drives; null: through the kernel. Threads: called by one thread for each
    /// disk.
    std::shared_ptr<DriveCalls> calls{};
    /// Address of the bus of the second reader; empty: the system bus.
    std::string serviceBus{};
    std::chrono::milliseconds serviceLimit{5000}; ///< for each call to the second reader
    /// For all disks, which are asked in parallel. A drive that is busy with a bad sector needs many seconds
    /// for each of three commands.
    std::chrono::milliseconds patience{60000};
};

/// Reads the S.M.A.R.T. data of the disks of a stack. Of several paths to a drive the first that works is
/// used.
///
/// The drive itself is asked if this process has the permission, otherwise a system service. No password is
/// asked for, no feature of the drive is enabled, and a sleeping drive is not woken. Threads: any; blocks for
/// at most `patience`. A drive that hangs occupies a thread until it answers. Fails: an empty answer with the
/// reason in `source`.
std::vector<DiskAnswer> smartOfDisks(const BlockStack& stack, const SmartSources& sources = {});

/// The same of all disks under a mounted file system. Fails: no disks, with the reason in `obstacle`.
DiskAnswers smartOfMount(const Mount& mount, const SmartSources& sources = {});

} // namespace OndelCore::platform
