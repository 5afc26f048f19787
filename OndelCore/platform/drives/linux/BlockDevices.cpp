#include "OndelCore/platform/drives/BlockDevices.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iterator>
#include <set>
#include <system_error>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

std::optional<dev_t> numberIn(const fs::path& folder) {
    const auto text = readAttribute(folder / "dev");
    if (!text)
        return std::nullopt;
    unsigned majorNumber = 0;
    unsigned minorNumber = 0;
    const char* const end = text->data() + text->size();
    const auto first = std::from_chars(text->data(), end, majorNumber);
    if (first.ec != std::errc{} || first.ptr == end || *first.ptr != ':' ||
        std::from_chars(first.ptr + 1, end, minorNumber).ec != std::errc{})
        return std::nullopt;
    return makedev(majorNumber, minorNumber);
}

/// The device tree has '!' in place of '/' in device names.
std::string exchanged(std::string name, char from, char to) {
    std::replace(name.begin(), name.end(), from, to);
    return name;
}

std::optional<BlockDevice> deviceAt(const fs::path& link) {
    std::error_code failed;
    const fs::path folder = fs::canonical(link, failed);
    if (failed)
        return std::nullopt;
    const auto number = numberIn(folder);
    if (!number)
        return std::nullopt;
    return BlockDevice{.number = *number,
                       .name = exchanged(folder.filename(), '!', '/'),
                       .folder = folder,
                       .isPartition = fs::exists(folder / "partition", failed)};
}

std::vector<fs::path> sortedEntries(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed))
        entries.push_back(entry->path());
    std::sort(entries.begin(), entries.end());
    return entries;
}

/// cryptsetup marks its layers as CRYPT-<kind>-…; not all kinds encrypt.
void noteLayer(const fs::path& folder, BlockStack& stack) {
    const auto uuid = readAttribute(folder / "dm" / "uuid");
    if (!uuid || !uuid->starts_with("CRYPT-"))
        return;
    if (uuid->starts_with("CRYPT-VERITY-"))
        stack.isSealed = true;
    else if (!uuid->starts_with("CRYPT-INTEGRITY-") && !uuid->starts_with("CRYPT-SUBDEV-"))
        stack.isEncrypted = true;
}

/// The kernel lists the devices of each Btrfs in use.
std::vector<BlockDevice> devicesOfBtrfs(const BlockDevice& mounted, const fs::path& sysfs) {
    for (const fs::path& fileSystem : sortedEntries(sysfs / "fs" / "btrfs")) {
        std::vector<BlockDevice> devices;
        for (const fs::path& link : sortedEntries(fileSystem / "devices"))
            if (const auto device = deviceAt(link))
                devices.push_back(*device);
        const auto isMounted = [&](const BlockDevice& device) { return device.number == mounted.number; };
        if (std::any_of(devices.begin(), devices.end(), isMounted))
            return devices;
    }
    return {mounted};
}

/// The devices of a pool have its name as their label.
std::vector<BlockDevice> devicesOfZfsPool(const std::string& pool, const SystemSources& sources) {
    std::vector<BlockDevice> devices;
    for (const fs::path& link : sortedEntries(sources.sysfs / "dev" / "block")) {
        const auto device = deviceAt(link);
        if (!device)
            continue;
        const DeviceProperties properties = sources.database(device->number);
        if (propertyIn(properties, "ID_FS_TYPE") == "zfs_member" &&
            propertyIn(properties, "ID_FS_LABEL") == pool)
            devices.push_back(*device);
    }
    return devices;
}

std::optional<dev_t> blockNumberOfNode(const fs::path& node) {
    struct stat facts{};
    if (stat(node.c_str(), &facts) != 0 || !S_ISBLK(facts.st_mode))
        return std::nullopt;
    return facts.st_rdev;
}

/// Names of device mapper, by the device tree: a sandbox may lack "/dev/mapper".
std::optional<BlockDevice> mappingNamed(std::string_view name, const fs::path& sysfs) {
    constexpr std::string_view mappings = "mapper/";
    if (!name.starts_with(mappings))
        return std::nullopt;
    for (const fs::path& link : sortedEntries(sysfs / "class" / "block"))
        if (readAttribute(link / "dm" / "name") == name.substr(mappings.size()))
            return deviceAt(link);
    return std::nullopt;
}

/// The device tree has the kernel's names, "/dev" the others.
std::optional<BlockDevice> deviceNamed(const std::string& name, const fs::path& sysfs) {
    if (auto device = blockDeviceNamed(name, sysfs))
        return device;
    if (const auto number = blockNumberOfNode(fs::path("/dev") / name))
        return blockDevice(*number, sysfs);
    return mappingNamed(name, sysfs);
}

/// The mount table lists several devices of one file system as "/dev/sda1:/dev/sdb1".
std::vector<BlockDevice> devicesNamed(std::string_view source, const fs::path& sysfs) {
    constexpr std::string_view prefix = "/dev/";
    std::vector<BlockDevice> found;
    while (source.starts_with(prefix)) {
        const auto end = std::min(source.find(":/dev/"), source.size());
        const std::string name(source.substr(0, end).substr(prefix.size()));
        if (auto device = deviceNamed(name, sysfs))
            found.push_back(std::move(*device));
        source.remove_prefix(std::min(end + 1, source.size()));
    }
    return found;
}

std::vector<BlockDevice> devicesOfMount(const Mount& mount, const SystemSources& sources) {
    if (mount.type == "zfs")
        return devicesOfZfsPool(mount.source.substr(0, mount.source.find('/')), sources);
    std::vector<BlockDevice> devices;
    if (major(mount.device) == 0)
        devices = devicesNamed(mount.source, sources.sysfs);
    else if (auto device = blockDevice(mount.device, sources.sysfs))
        devices.push_back(std::move(*device));
    if (mount.type == "btrfs" && !devices.empty())
        return devicesOfBtrfs(devices.front(), sources.sysfs);
    return devices;
}

/// The devices directly below a device. Absent: it is a whole disk.
std::optional<std::vector<BlockDevice>> layerBelow(const BlockDevice& whole, const SystemSources& sources) {
    std::vector<BlockDevice> devices;
    if (const auto file = readAttribute(whole.folder / "loop" / "backing_file")) {
        if (const auto mount = mountAbove(sources.mountTable.mounts(), *file))
            devices = devicesOfMount(*mount, sources);
        return devices.empty() ? std::nullopt : std::optional(devices);
    }
    const std::vector<fs::path> links = sortedEntries(whole.folder / "slaves");
    if (links.empty())
        return std::nullopt;
    const bool isMultipath = readAttribute(whole.folder / "dm" / "uuid").value_or("").starts_with("mpath-");
    for (const fs::path& link : links)
        if (auto device = deviceAt(link)) {
            device->pathOf = isMultipath ? whole.number : whole.pathOf;
            devices.push_back(std::move(*device));
        }
    return devices;
}

/// Depth first, so that the disks keep the order in which the layers name them. Each device is visited once,
/// so the walk ends also if the tree has a cycle.
BlockStack stackUnder(std::vector<BlockDevice> waiting, const SystemSources& sources) {
    BlockStack stack;
    std::set<dev_t> seen;
    std::ranges::reverse(waiting);
    while (!waiting.empty()) {
        const BlockDevice device = waiting.back();
        BlockDevice whole = wholeDevice(device);
        waiting.pop_back();
        if (device.isPartition && seen.insert(device.number).second)
            stack.layers.push_back(device);
        if (!seen.insert(whole.number).second)
            continue;
        noteLayer(whole.folder, stack);
        if (auto below = layerBelow(whole, sources)) {
            waiting.insert(waiting.end(), below->rbegin(), below->rend());
            stack.layers.push_back(std::move(whole));
        } else {
            stack.wholeDisks.push_back(std::move(whole));
        }
    }
    return stack;
}

} // namespace

std::optional<std::string> readAttribute(const fs::path& file) {
    std::array<char, 4096> page{}; // the kernel makes none longer
    std::ifstream stream(file);
    if (!stream)
        return std::nullopt;
    stream.read(page.data(), page.size());
    const std::string_view text(page.data(), static_cast<std::size_t>(stream.gcount()));
    const std::size_t end = text.find('\n');
    if (stream.bad() || (end == std::string_view::npos && text.size() == page.size()))
        return std::nullopt;
    return std::string(text.substr(0, end));
}

std::optional<std::string> readUeventValue(const fs::path& folder, std::string_view key) {
    std::ifstream stream(folder / "uevent");
    for (std::string line; std::getline(stream, line);)
        if (line.size() > key.size() + 1 && line.starts_with(key) && line[key.size()] == '=')
            return line.substr(key.size() + 1);
    return std::nullopt;
}

std::optional<std::int64_t> readNumber(const fs::path& file) {
    const auto text = readAttribute(file);
    std::int64_t number = 0;
    if (!text)
        return std::nullopt;
    const auto [end, failed] = std::from_chars(text->data(), text->data() + text->size(), number);
    if (failed != std::errc{} || end != text->data() + text->size())
        return std::nullopt;
    return number;
}

std::optional<BlockDevice> blockDevice(dev_t number, const fs::path& sysfs) {
    const fs::path link =
        sysfs / "dev" / "block" / (std::to_string(major(number)) + ':' + std::to_string(minor(number)));
    std::error_code failed;
    // One system call for an unknown number; resolving the path would take one per folder.
    return fs::is_symlink(link, failed) ? deviceAt(link) : std::nullopt;
}

std::optional<BlockDevice> blockDeviceNamed(std::string name, const fs::path& sysfs) {
    return deviceAt(sysfs / "class" / "block" / exchanged(std::move(name), '/', '!'));
}

BlockDevice wholeDevice(const BlockDevice& device) {
    if (!device.isPartition)
        return device;
    BlockDevice whole = deviceAt(device.folder.parent_path()).value_or(device);
    whole.pathOf = device.pathOf;
    return whole;
}

bool isSuspended(const BlockDevice& wholeDisk) {
    return readAttribute(wholeDisk.folder / "device/power/runtime_status") == "suspended";
}

BlockStack blockStack(dev_t number, const SystemSources& sources) {
    const auto device = blockDevice(number, sources.sysfs);
    return device ? stackUnder({*device}, sources) : BlockStack();
}

BlockStack blockStack(const Mount& mount, const SystemSources& sources) {
    BlockStack stack = stackUnder(devicesOfMount(mount, sources), sources);
    std::error_code failed;
    stack.isPartial = mount.type == "btrfs" && !fs::exists(sources.sysfs / "fs" / "btrfs", failed);
    return stack;
}

BlockStack blockStackOfDescriptor(int descriptor, const SystemSources& sources) {
    if (const auto mount = mountOfDescriptor(descriptor, sources.mountTable.mounts()))
        return blockStack(*mount, sources);
    struct stat facts{}; // a mount outside this namespace, or a kernel without mount ids
    return fstat(descriptor, &facts) == 0 ? blockStack(facts.st_dev, sources) : BlockStack();
}

DeviceProperties superblockUnlessAsleep(dev_t number, const SystemSources& sources) {
    return std::ranges::any_of(blockStack(number, sources).wholeDisks, isSuspended)
               ? DeviceProperties()
               : sources.superblock(number);
}

BlockStack blockStackNamed(std::string_view path, const SystemSources& sources) {
    std::vector<BlockDevice> devices;
    for (const BlockDevice& device : devicesNamed(path, sources.sysfs))
        std::ranges::copy(devicesOfBtrfs(device, sources.sysfs), std::back_inserter(devices));
    return stackUnder(std::move(devices), sources);
}

std::optional<dev_t> deviceOfMount(const Mount& mount) {
    if (major(mount.device) != 0)
        return mount.device;
    if (!mount.source.starts_with("/dev/"))
        return std::nullopt;
    if (const auto number = blockNumberOfNode(mount.source))
        return number;
    // The first of several devices: "/dev/sda1:/dev/sdb1".
    return blockNumberOfNode(mount.source.substr(0, mount.source.find(':')));
}

std::string sourceOfMount(const Mount& mount, const fs::path& sysfs) {
    const bool isPlaceholder = mount.source == "/dev/root" || !mount.source.starts_with('/');
    if (isPlaceholder && major(mount.device) != 0)
        if (const auto device = blockDevice(mount.device, sysfs))
            return device->node().string();
    return mount.source;
}

} // namespace OndelCore::platform
