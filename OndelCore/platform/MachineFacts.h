#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace OndelCore::platform {

/// What this program runs on. Absent: the system does not say.
struct MachineFacts {
    std::optional<std::string> systemName;    ///< with its version: "Debian GNU/Linux 12 (bookworm)"
    std::optional<std::string> hardwareModel; ///< as the maker wrote it into the firmware
    std::optional<std::string> processorName;
    std::optional<std::int64_t> memoryBytes; ///< what is built in, not what the kernel has left

    bool operator==(const MachineFacts&) const = default;
};

/// `root`: where the system's own files are found; another folder in tests.
/// Threads: any. Fails: never; what cannot be read is absent.
MachineFacts machineFacts(const std::filesystem::path& root = "/");

/// The processor family this program was built for: "x86_64".
std::string buildArchitecture();

} // namespace OndelCore::platform
