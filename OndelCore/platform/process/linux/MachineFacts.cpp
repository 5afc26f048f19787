#include "OndelCore/platform/process/MachineFacts.h"

#include <QString>
#include <QSysInfo>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <string_view>

namespace OndelCore::platform {

namespace fs = std::filesystem;

namespace {

/// Placeholders in firmware whose maker entered no name.
constexpr std::array<std::string_view, 8> firmwareFillers{"To Be Filled By O.E.M.",
                                                          "To be filled by O.E.M.",
                                                          "System Product Name",
                                                          "Default string",
                                                          "O.E.M.",
                                                          "Not Applicable",
                                                          "Not Specified",
                                                          "None"};

std::string trimmed(std::string_view text) {
    constexpr std::string_view blanks(" \t\r\n\0", 5);
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

std::optional<std::string> firstLineOf(const fs::path& file) {
    std::ifstream stream(file);
    std::string line;
    if (!std::getline(stream, line))
        return std::nullopt;
    line = trimmed(line);
    return line.empty() ? std::nullopt : std::optional(line);
}

/// Decodes a value of os-release(5) as a shell does: without quotes, escapes resolved.
std::string unquoted(std::string_view value) {
    const bool single = value.starts_with('\'');
    if (value.size() >= 2 && (single || value.starts_with('"')) && value.back() == value.front())
        value = value.substr(1, value.size() - 2);
    std::string plain;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (!single && value[i] == '\\' && i + 1 < value.size())
            ++i;
        plain += value[i];
    }
    return plain;
}

std::optional<std::string> prettyNameIn(const fs::path& osRelease) {
    constexpr std::string_view key = "PRETTY_NAME=";
    std::ifstream stream(osRelease);
    for (std::string line; std::getline(stream, line);)
        if (line.starts_with(key))
            if (std::string name = unquoted(trimmed(std::string_view(line).substr(key.size())));
                !name.empty())
                return name;
    return std::nullopt;
}

/// The installed memory, counted in blocks of one size (sysfs, "memory"). It includes what the kernel
/// reserves, so 16 GB read as 16.
std::optional<std::int64_t> memoryBlocksIn(const fs::path& folder) {
    const auto size = firstLineOf(folder / "block_size_bytes");
    std::int64_t blockBytes = 0;
    if (!size || std::from_chars(size->data(), size->data() + size->size(), blockBytes, 16).ec != std::errc{})
        return std::nullopt;
    std::int64_t online = 0;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with("memory") && firstLineOf(entry->path() / "online") == "1")
            ++online;
    }
    return online > 0 && blockBytes > 0 ? std::optional(online * blockBytes) : std::nullopt;
}

std::optional<std::int64_t> kernelMemoryBytes() {
    const std::int64_t pages = sysconf(_SC_PHYS_PAGES);
    const std::int64_t pageBytes = sysconf(_SC_PAGESIZE);
    return pages > 0 && pageBytes > 0 ? std::optional(pages * pageBytes) : std::nullopt;
}

} // namespace

std::optional<std::string> systemName(const fs::path& root) {
    // A container is told here what runs it (systemd.io/CONTAINER_INTERFACE).
    for (const char* file : {"run/host/os-release", "etc/os-release", "usr/lib/os-release"})
        if (auto name = prettyNameIn(root / file))
            return name;
    return std::nullopt;
}

std::optional<std::string> hardwareModel(const fs::path& root) {
    for (const char* file : {"sys/class/dmi/id/product_name", "proc/device-tree/model"}) {
        auto model = firstLineOf(root / file);
        if (model &&
            std::find(firmwareFillers.begin(), firmwareFillers.end(), *model) == firmwareFillers.end())
            return model;
    }
    return std::nullopt;
}

std::optional<std::string> processorName(const fs::path& root) {
    std::ifstream stream(root / "proc/cpuinfo");
    for (std::string line; std::getline(stream, line);) {
        const auto colon = line.find(':');
        if (colon == std::string::npos || trimmed(std::string_view(line).substr(0, colon)) != "model name")
            continue;
        if (std::string name = trimmed(std::string_view(line).substr(colon + 1)); !name.empty())
            return name;
    }
    return std::nullopt;
}

std::optional<std::int64_t> physicalMemoryBytes(const fs::path& root) {
    const auto blocks = memoryBlocksIn(root / "sys/devices/system/memory");
    return blocks ? blocks : kernelMemoryBytes();
}

std::string buildArchitecture() { return QSysInfo::buildCpuArchitecture().toStdString(); }

} // namespace OndelCore::platform
