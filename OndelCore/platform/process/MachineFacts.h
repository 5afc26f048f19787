#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

// The machine and the system that this program runs on. `root`: the folder of the system's files; tests use
// another. Threads: any. Fails: absent if unknown.

/// The system with its version: "Debian GNU/Linux 12 (bookworm)".
std::optional<std::string> systemName(const std::filesystem::path& root = "/");

/// The machine's name in its firmware.
std::optional<std::string> hardwareModel(const std::filesystem::path& root = "/");

std::optional<std::string> processorName(const std::filesystem::path& root = "/");

/// Units: bytes installed, including what the kernel reserves.
std::optional<std::int64_t> physicalMemoryBytes(const std::filesystem::path& root = "/");

/// The processor family this program was built for: "x86_64".
std::string buildArchitecture();

} // namespace OndelCore::platform
