#pragma once

#include "OndelCore/platform/SystemSources.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <variant>

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

/// A system service spoke for an ATA drive. The figures stand under their attribute numbers in the units of
/// the drive's raw values: counts, hours (9), degrees Celsius (194).
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

/// Where the answers come from: the real system, unless a caller hands in something else.
struct SmartSources {
    SystemSources system;
    std::filesystem::path devices = "/dev";
    /// Carries the commands to the drives; null: the kernel. Owner: the caller.
    DriveCalls* calls = nullptr;
    /// Address of the bus of the second reader; empty: the system bus.
    std::string serviceBus;
    std::chrono::milliseconds serviceLimit{5000}; ///< for each call to the second reader
};

/// What the drive behind a block device says of its health. Of several drives the first that answers counts.
///
/// `deviceName`: the device below "/dev" ("sda1", "mapper/vault"). The drive is asked itself where this
/// process may; otherwise a system service that may is asked for what it knows. Nobody is prompted, nothing
/// is switched on in the drive, and a drive that sleeps is left asleep.
/// Threads: any; blocks. A command to a drive takes at most 20 s, a call to the service `serviceLimit`.
/// Fails: an empty answer with the reason in `source`.
SmartAnswer smartOfDevice(const std::string& deviceName, const SmartSources& sources = {});

} // namespace OndelCore::platform
