#include "OndelCore/platform/drives/DiskWitness.h"

#include "OndelCore/platform/drives/BlockDevices.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace OndelCore::platform {

namespace {

constexpr std::int64_t sector = 512; // the unit of `stat`, whatever the disk's own is
constexpr std::size_t fields = 7;    // up to the written sectors

/// The first numbers of a disk's "stat" (the kernel's Documentation/block/stat.rst). Fails: absent.
std::optional<std::array<std::int64_t, fields>> statOf(const std::filesystem::path& folder) {
    std::array<std::int64_t, fields> numbers{};
    std::ifstream file(folder / "stat");
    for (std::int64_t& number : numbers)
        if (!(file >> number) || number < 0)
            return std::nullopt;
    return numbers;
}

class BlockDeviceWitness : public DiskWitness {
public:
    explicit BlockDeviceWitness(std::vector<std::filesystem::path> folders)
        : m_folders(std::move(folders)) {}

    std::optional<DiskCounters> counters() override {
        DiskCounters sum;
        for (const std::filesystem::path& folder : m_folders) {
            const auto numbers = statOf(folder);
            constexpr std::int64_t most = INT64_MAX / sector / 1024;
            if (!numbers || std::ranges::any_of(*numbers, [](std::int64_t number) { return number > most; }))
                return std::nullopt;
            sum.reads += (*numbers)[0];
            sum.readBytes += (*numbers)[2] * sector;
            sum.writes += (*numbers)[4];
            sum.writtenBytes += (*numbers)[6] * sector;
        }
        const DiskCounters before = std::exchange(m_last, sum);
        if (sum.reads < before.reads || sum.readBytes < before.readBytes || sum.writes < before.writes ||
            sum.writtenBytes < before.writtenBytes)
            return std::nullopt;
        return sum;
    }

private:
    std::vector<std::filesystem::path> m_folders;
    DiskCounters m_last;
};

/// The value behind `name` in a text of lines "name: value". Fails: absent.
std::optional<std::int64_t> valueOf(std::string_view text, std::string_view name) {
    const std::size_t at = text.find(name);
    std::int64_t value = 0;
    if (at == std::string_view::npos)
        return std::nullopt;
    const char* digits = text.data() + at + name.size();
    const auto read = std::from_chars(digits, text.data() + text.size(), value);
    return read.ec == std::errc() && value >= 0 ? std::optional(value) : std::nullopt;
}

} // namespace

std::unique_ptr<DiskWitness> diskWitness(int folder) {
    const BlockStack stack = blockStackOfDescriptor(folder);
    if (stack.isPartial) // what went to the other disks would read as memory's
        return nullptr;
    std::vector<std::filesystem::path> folders;
    for (const BlockDevice& disk : stack.wholeDisks)
        folders.push_back(disk.folder);
    return witnessOf(std::move(folders));
}

std::unique_ptr<DiskWitness> volumeWitness(int folder) {
    const SystemSources system;
    const auto mount = mountOfDescriptor(folder, system.mountTable.mounts());
    if (!mount || mountOptionValue(mount->superOptions, "rtdev")) // XFS may keep its data on another device
        return nullptr;
    const auto device = blockDevice(mount->device, system.sysfs);
    const bool isWholeDisk =
        device && std::ranges::any_of(blockStack(*mount, system).wholeDisks,
                                      [&](const BlockDevice& disk) { return disk.number == device->number; });
    return device && !isWholeDisk ? witnessOf({device->folder}) : nullptr;
}

std::unique_ptr<DiskWitness> witnessOf(std::vector<std::filesystem::path> deviceFolders) {
    return deviceFolders.empty() ? nullptr : std::make_unique<BlockDeviceWitness>(std::move(deviceFolders));
}

std::optional<ThreadTraffic> trafficOfThisThread() {
    std::ifstream file("/proc/thread-self/io");
    std::string text(1024, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    const auto read = valueOf(text, "\nread_bytes: ");
    const auto written = valueOf(text, "\nwrite_bytes: ");
    return read && written ? std::optional(ThreadTraffic{*read, *written}) : std::nullopt;
}

} // namespace OndelCore::platform
