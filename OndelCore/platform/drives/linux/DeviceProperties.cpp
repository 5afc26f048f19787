#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <blkid/blkid.h>
#include <fcntl.h>
#include <libudev.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace OndelCore::platform {

namespace {

struct Unref {
    void operator()(udev* context) const { udev_unref(context); }
    void operator()(udev_device* device) const { udev_device_unref(device); }
    void operator()(blkid_struct_probe* probe) const { blkid_free_probe(probe); }
};

int hexDigit(char character) {
    if (character >= '0' && character <= '9')
        return character - '0';
    if (character >= 'a' && character <= 'f')
        return character - 'a' + 10;
    if (character >= 'A' && character <= 'F')
        return character - 'A' + 10;
    return -1;
}

/// The database writes bytes that are unsafe in file names as "\x" and two hexadecimal digits.
std::string decodeEscapes(std::string_view text) {
    std::string decoded;
    while (!text.empty()) {
        const bool isEscape = text.size() >= 4 && text[0] == '\\' && text[1] == 'x' &&
                              hexDigit(text[2]) >= 0 && hexDigit(text[3]) >= 0;
        decoded += isEscape ? static_cast<char>(hexDigit(text[2]) * 16 + hexDigit(text[3])) : text[0];
        text.remove_prefix(isEscape ? 4 : 1);
    }
    return decoded;
}

void copyTag(blkid_probe probe, const char* tag, const char* name, DeviceProperties& properties) {
    const char* value = nullptr;
    std::size_t length = 0; // includes the terminator
    if (blkid_probe_lookup_value(probe, tag, &value, &length) == 0 && length > 1)
        properties[name] = std::string(value, length - 1);
}

DeviceProperties probed(blkid_struct_probe& probe) {
    DeviceProperties properties;
    blkid_probe_enable_superblocks(&probe, 1);
    blkid_probe_set_superblocks_flags(&probe, BLKID_SUBLKS_LABEL | BLKID_SUBLKS_TYPE);
    if (blkid_do_safeprobe(&probe) != 0)
        return properties;
    copyTag(&probe, "LABEL", "ID_FS_LABEL", properties);
    copyTag(&probe, "TYPE", "ID_FS_TYPE", properties);
    return properties;
}

} // namespace

std::optional<std::string> propertyIn(const DeviceProperties& properties, std::string_view name) {
    const auto found = properties.find(name);
    return found == properties.end() ? std::nullopt : std::optional(found->second);
}

DeviceProperties databaseProperties(dev_t number) {
    DeviceProperties properties;
    const std::unique_ptr<udev, Unref> context(udev_new());
    if (!context)
        return properties;
    const std::unique_ptr<udev_device, Unref> device(udev_device_new_from_devnum(context.get(), 'b', number));
    if (!device)
        return properties;
    udev_list_entry* entry = nullptr;
    udev_list_entry_foreach(entry, udev_device_get_properties_list_entry(device.get())) {
        const char* const name = udev_list_entry_get_name(entry);
        const char* const value = udev_list_entry_get_value(entry);
        if (name && value && *value)
            properties[name] = value;
    }
    // The plain values lack some characters; the encoded ones are complete.
    for (const char* name : {"ID_FS_LABEL", "ID_VENDOR", "ID_MODEL"})
        if (const auto encoded = propertyIn(properties, std::string(name) + "_ENC"))
            properties[name] = decodeEscapes(*encoded);
    if (const auto partition = properties.find("ID_PART_ENTRY_NAME"); partition != properties.end())
        partition->second = decodeEscapes(partition->second);
    return properties;
}

DeviceProperties superblockProperties(dev_t number) {
    const auto device = blockDevice(number);
    if (!device)
        return {};
    const std::unique_ptr<blkid_struct_probe, Unref> probe(
        blkid_new_probe_from_filename(device->node().c_str()));
    if (!probe)
        return {};
    return probed(*probe);
}

DeviceProperties imageProperties(const std::filesystem::path& image) {
    const FileDescriptor file(open(image.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat facts{};
    const std::unique_ptr<blkid_struct_probe, Unref> probe(blkid_new_probe());
    if (!file || fstat(file.get(), &facts) != 0 || !S_ISREG(facts.st_mode) || !probe ||
        blkid_probe_set_device(probe.get(), file.get(), 0, 0) != 0)
        return {};
    return probed(*probe);
}

} // namespace OndelCore::platform
