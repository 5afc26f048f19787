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

/// A block of health data exactly as the drive sent it.
using SmartPage = std::array<std::uint8_t, 512>;

/// An NVMe drive answered: its SMART / Health Information log page.
struct NvmeSmart {
    SmartPage page{};
};

/// An ATA drive answered. What it was asked for and did not give is absent.
struct AtaSmart {
    std::optional<bool> thresholdExceeded; ///< its verdict: SMART RETURN STATUS
    std::optional<SmartPage> page;         ///< its figures: SMART READ DATA
};

/// A system service spoke for an NVMe drive. Only what it knows is there.
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

/// A system service spoke for an ATA drive. The figures stand under their attribute numbers as the drive's
/// raw values do, makers' packing of other figures included.
struct AtaSmartReport {
    bool thresholdExceeded = false;
    std::map<std::uint8_t, std::uint64_t> attributes;
};

struct SmartAnswer {
    /// std::monostate: nobody gave a verdict.
    std::variant<std::monostate, NvmeSmart, AtaSmart, NvmeSmartReport, AtaSmartReport> blocks;
    /// One line in plain words: who answered, or why nobody did.
    std::string source;

    bool isEmpty() const { return std::holds_alternative<std::monostate>(blocks); }
};

/// What one whole disk answered.
struct DiskAnswer {
    std::string disk; ///< its name below "/dev"
    SmartAnswer answer;
};

struct DiskAnswers {
    std::vector<DiskAnswer> disks; ///< in the device tree's order of names
    std::string obstacle;          ///< without disks: why there are none, in one line
};

/// Where the answers come from: the real system, unless a caller hands in something else.
struct SmartSources {
    SystemSources system;
    /// Carries the commands to the drives; null: the kernel. Threads: used by one thread for each disk.
    std::shared_ptr<DriveCalls> calls{};
    /// Address of the bus of the second reader; empty: the system bus.
    std::string serviceBus{};
    std::chrono::milliseconds serviceLimit{5000}; ///< for each call to the second reader
    /// For all disks together, which are asked at once. A drive that is busy with a bad sector needs many
    /// seconds for each of its three commands.
    std::chrono::milliseconds patience{60000};
};

/// What the disks of a stack say of their health. A drive that several paths lead to is asked through the
/// first that works.
///
/// A drive is asked itself where this process may; otherwise a system service that may is asked for what it
/// knows. Nobody is prompted, nothing is switched on in a drive, and a sleeping drive is not woken. Threads:
/// any; blocks for at most `patience`. A drive that hangs keeps a thread of its own for as long as it does.
/// Fails: an empty answer with the reason in `source`.
std::vector<DiskAnswer> smartOfDisks(const BlockStack& stack, const SmartSources& sources = {});

/// The same of all disks under a mounted file system. Fails: no disks, with the reason in `obstacle`.
DiskAnswers smartOfMount(const Mount& mount, const SmartSources& sources = {});

} // namespace OndelCore::platform
