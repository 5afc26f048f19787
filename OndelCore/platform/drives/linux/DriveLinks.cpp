#include "OndelCore/platform/drives/linux/DriveLinks.h"

#include "OndelCore/platform/drives/linux/DriveBus.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iomanip>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

/// The number at the start of "8.0 GT/s PCIe" or "6.0 Gbps". Fails: absent, also without that unit.
std::optional<double> rateIn(const fs::path& file, std::string_view unit) {
    const std::string text = readAttribute(file).value_or("");
    double rate = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), rate);
    const std::string_view rest(end, text.data() + text.size());
    return failed == std::errc() && rate > 0 && rate < 1000 && rest.starts_with(unit) ? std::optional(rate)
                                                                                      : std::nullopt;
}

// PCIe

/// Bits per second of a PCIe device's link. `which`: "current" or "max".
std::optional<double> pcieRate(const fs::path& device, const std::string& which) {
    const auto transfers = rateIn(device / (which + "_link_speed"), " GT/s");
    const auto lanes = readNumber(device / (which + "_link_width"));
    constexpr std::int64_t mostLanes = 32; // 255 means unknown
    if (!transfers || !lanes || *lanes < 1 || *lanes > mostLanes)
        return std::nullopt;
    return *transfers * 1e9 * static_cast<double>(*lanes);
}

std::optional<DriveLink> pcieLink(const BlockDevice& disk) {
    const std::vector<fs::path> controllers = nvmeControllers(disk);
    // A tunnel (Thunderbolt, USB4) shows the slowest PCIe link that there is. Several controllers share the
    // work.
    if (controllers.size() != 1 || busOfDisk(disk).name != "NVMe")
        return std::nullopt;
    std::error_code failed;
    const fs::path device = fs::canonical(controllers.front() / "device", failed);
    const auto now = pcieRate(device, "current");
    const auto best = pcieRate(device, "max");
    if (failed || !now || !best)
        return std::nullopt;
    return DriveLink{.kind = DriveLink::Kind::pcie, .now = *now, .best = *best};
}

// SATA

/// The fastest rate that an ATA disk names in word 76 of its identity (ACS-3, 7.12.7.33), which the kernel
/// shows as lines of hexadecimal words.
std::optional<double> sataBest(const fs::path& identity) {
    constexpr std::size_t capabilities = 76;
    std::ifstream file(identity);
    std::string word;
    for (std::size_t index = 0; index <= capabilities; ++index)
        if (!(file >> std::setw(8) >> word) || word.size() != 4)
            return std::nullopt;
    unsigned bits = 0;
    const auto [end, failed] = std::from_chars(word.data(), word.data() + word.size(), bits, 16);
    if (failed != std::errc() || end != word.data() + word.size() || (bits & 1U)) // ffff: no word
        return std::nullopt;
    constexpr std::array<double, 3> generations{1.5e9, 3e9, 6e9}; // bits 1 to 3
    for (std::size_t generation = generations.size(); generation > 0; --generation)
        if (bits & (1U << generation))
            return generations[generation - 1];
    return std::nullopt;
}

/// The number of an ATA port in a disk's path ("ata3": 3), with its folder. Fails: absent.
struct AtaPort {
    fs::path folder;
    std::string number;
};
std::optional<AtaPort> ataPortOf(const BlockDevice& disk) {
    fs::path folder;
    for (const fs::path& part : disk.folder) {
        folder /= part;
        const std::string& name = part.native();
        if (name.size() > 3 && name.starts_with("ata") &&
            name.find_first_not_of("0123456789", 3) == std::string::npos)
            return AtaPort{folder, name.substr(3)};
    }
    return std::nullopt;
}

std::optional<DriveLink> sataLink(const BlockDevice& disk) {
    const auto port = ataPortOf(disk);
    std::error_code failed;
    const std::string address = fs::canonical(disk.folder / "device", failed).filename(); // "0:0:0:0"
    if (!port || failed || !address.ends_with(":0:0:0"))
        return std::nullopt; // another one is behind a port multiplier, with a link of its own
    const std::string link = "link" + port->number;
    const std::string device = "dev" + port->number + ".0";
    const auto now = rateIn(port->folder / link / "ata_link" / link / "sata_spd", " Gbps");
    const auto best = sataBest(port->folder / link / device / "ata_device" / device / "id");
    if (!now || !best)
        return std::nullopt;
    return DriveLink{.kind = DriveLink::Kind::sata, .now = *now * 1e9, .best = *best};
}

// USB

using Descriptors = std::vector<std::uint8_t>;

std::optional<Descriptors> bytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    Descriptors bytes(4096);
    stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(stream.gcount()));
    return bytes;
}

std::uint32_t littleEndian(const std::uint8_t* bytes) {
    return bytes[0] | (std::uint32_t{bytes[1]} << 8) | (std::uint32_t{bytes[2]} << 16) |
           (std::uint32_t{bytes[3]} << 24);
}

/// The fastest rate of a SuperSpeedPlus capability (USB 3.2, 9.6.2.5).
double fastestSublink(const std::uint8_t* capability, std::size_t length) {
    constexpr std::size_t first = 12;
    double best = 0;
    for (std::size_t at = first; at + 4 <= length; at += 4) {
        const std::uint32_t sublink = littleEndian(capability + at);
        const auto exponent = (sublink >> 4) & 3U;
        best = std::max(best, static_cast<double>(sublink >> 16) * std::pow(1000, exponent));
    }
    return best;
}

/// The fastest rate that a USB device names in its capabilities (BOS; USB 3.2, 9.6.2). Fails: absent if it
/// names no SuperSpeed.
std::optional<double> usbBest(const Descriptors& capabilities) {
    constexpr std::uint8_t capabilityType = 0x10;
    constexpr std::uint8_t superSpeed = 3;
    constexpr std::uint8_t superSpeedPlus = 10;
    constexpr double fastest = 1e11; // more is nonsense
    double best = 0;
    for (std::size_t at = 0; at + 4 <= capabilities.size();) {
        const std::uint8_t* const entry = capabilities.data() + at;
        const std::size_t length = entry[0];
        if (length < 3 || at + length > capabilities.size())
            return std::nullopt;
        if (entry[1] == capabilityType && entry[2] == superSpeed && length >= 6 && (entry[4] & 8U))
            best = std::max(best, 5e9);
        if (entry[1] == capabilityType && entry[2] == superSpeedPlus)
            best = std::max(best, fastestSublink(entry, length));
        at += length;
    }
    return best > 0 && best < fastest ? std::optional(best) : std::nullopt;
}

std::optional<DriveLink> usbLink(const BlockDevice& disk) {
    constexpr double highSpeed = 480e6;
    for (fs::path folder = disk.folder; folder.has_relative_path(); folder = folder.parent_path()) {
        const auto megabits = readNumber(folder / "speed");
        const auto version = readAttribute(folder / "version");
        if (!megabits || !version)
            continue;
        const double now = static_cast<double>(*megabits) * 1e6;
        std::optional<double> best;
        if (const auto capabilities = bytesOf(folder / "bos_descriptors"))
            best = usbBest(*capabilities);
        else if (version->ends_with("2.10") && now == highSpeed)
            best = 5e9; // how a SuperSpeed device announces itself on a slower port (USB 3.2, 9.2.6.6)
        if (!best || now < highSpeed)
            return std::nullopt;
        return DriveLink{.kind = DriveLink::Kind::usb, .now = now, .best = *best};
    }
    return std::nullopt;
}

} // namespace

std::optional<DriveLink> linkOfDisk(const BlockDevice& wholeDisk) {
    if (isOfVirtualMachine(wholeDisk))
        return std::nullopt;
    const auto bus = busOfDisk(wholeDisk).name;
    if (bus == "NVMe")
        return pcieLink(wholeDisk);
    if (bus == "SATA")
        return sataLink(wholeDisk);
    return bus == "USB" ? usbLink(wholeDisk) : std::nullopt;
}

} // namespace OndelCore::platform
