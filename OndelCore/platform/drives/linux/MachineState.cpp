#include "OndelCore/platform/drives/linux/MachineState.h"

#include "OndelCore/platform/drives/BlockDevices.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        entries.push_back(entry->path());
    return entries;
}

/// The number behind `name` and any blanks. Fails: absent unless it is followed by `unit`.
std::optional<std::int64_t> numberBehind(std::string_view text, std::string_view name,
                                         std::string_view unit = "") {
    const std::size_t at = text.find(name);
    if (at == std::string_view::npos)
        return std::nullopt;
    text.remove_prefix(at + name.size());
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    std::int64_t number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return failed == std::errc() && number >= 0 && text.starts_with(unit) ? std::optional(number)
                                                                          : std::nullopt;
}

bool isPinnedToLowest(const fs::path& policy) {
    // These scale freely under the name; the kernel's "powersave" governor is another thing.
    constexpr std::array<std::string_view, 3> ordinary{"intel_pstate", "amd-pstate-epp", "amd_pstate_epp"};
    const auto driver = readAttribute(policy / "scaling_driver");
    const auto lowest = readNumber(policy / "scaling_min_freq");
    const auto highest = readNumber(policy / "cpuinfo_max_freq");
    return readAttribute(policy / "scaling_governor") == "powersave" && driver &&
           std::ranges::find(ordinary, *driver) == ordinary.end() && lowest && highest && *lowest > 0 &&
           *lowest < *highest;
}

} // namespace

bool isOnBattery(const fs::path& sysfs) {
    bool discharges = false;
    for (const fs::path& supply : entriesOf(sysfs / "class/power_supply")) {
        if (readAttribute(supply / "scope") == "Device")
            continue; // a mouse, a headset
        const auto type = readAttribute(supply / "type");
        if (type != "Battery" && readNumber(supply / "online").value_or(0) > 0)
            return false;
        discharges = discharges || (type == "Battery" && readAttribute(supply / "status") == "Discharging");
    }
    return discharges;
}

bool hasPowerSaveGovernor(const fs::path& sysfs) {
    std::vector<fs::path> policies = entriesOf(sysfs / "devices/system/cpu/cpufreq");
    std::erase_if(policies,
                  [](const fs::path& entry) { return !entry.filename().native().starts_with("policy"); });
    return !policies.empty() && std::ranges::all_of(policies, isPinnedToLowest);
}

std::optional<std::int64_t> memoryOfKernel(const fs::path& proc) {
    constexpr std::int64_t most = INT64_MAX / 1024;
    const auto kibibytes = numberBehind(readAttribute(proc / "meminfo").value_or(""), "MemTotal:", " kB");
    return kibibytes && *kibibytes > 0 && *kibibytes <= most ? std::optional(*kibibytes * 1024)
                                                             : std::nullopt;
}

std::string kernelRelease(const fs::path& proc) {
    constexpr std::size_t longest = 64; // of uname(2)
    std::string release = readAttribute(proc / "sys/kernel/osrelease").value_or("");
    const bool isPlain = std::ranges::all_of(release, [](char byte) { return byte > ' ' && byte <= '~'; });
    return isPlain && release.size() <= longest ? release : std::string();
}

std::optional<std::int64_t> ioWaitMicroseconds(const fs::path& proc) {
    const std::string some = readAttribute(proc / "pressure/io").value_or("");
    return some.starts_with("some ") ? numberBehind(some, " total=") : std::nullopt;
}

} // namespace OndelCore::platform
