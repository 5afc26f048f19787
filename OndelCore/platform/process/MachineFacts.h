#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

// What this program runs on. `root` is where the system's own files are found; another folder in tests.
// Threads: any. Fails: absent where the system does not say.

/// The system with its version: "Debian GNU/Linux 12 (bookworm)".
std::optional<std::string> systemName(const std::filesystem::path& root = "/");

/// The machine as its maker wrote it into the firmware.
std::optional<std::string> hardwareModel(const std::filesystem::path& root = "/");

std::optional<std::string> processorName(const std::filesystem::path& root = "/");

/// Units: bytes that are built in, not what the kernel has left of them.
std::optional<std::int64_t> physicalMemoryBytes(const std::filesystem::path& root = "/");

/// The processor family this program was built for: "x86_64".
std::string buildArchitecture();

} // namespace OndelCore::platform
