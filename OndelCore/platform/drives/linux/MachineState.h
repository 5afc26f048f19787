#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

// What of the machine bears on a measurement. `sysfs`, `proc`: where these are mounted. Threads: any.

/// Whether a battery of the machine itself is being discharged and nothing charges it. Fails: false.
bool isOnBattery(const std::filesystem::path& sysfs);

/// Whether the governor "powersave" keeps all processors at their lowest frequency. Drivers that choose the
/// frequency themselves call their ordinary way so too; that does not count. Fails: false.
bool hasPowerSaveGovernor(const std::filesystem::path& sysfs);

/// What the kernel has of it. Units: bytes. Fails: absent.
std::optional<std::int64_t> memoryOfKernel(const std::filesystem::path& proc);

/// The kernel's release: "6.1.0-18-amd64". Fails: empty.
std::string kernelRelease(const std::filesystem::path& proc);

/// How long some task has waited for a disk since the start. Units: microseconds. Fails: absent.
std::optional<std::int64_t> ioWaitMicroseconds(const std::filesystem::path& proc);

} // namespace OndelCore::platform
