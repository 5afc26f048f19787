#include "OndelCore/platform/drives/DriveDescription.h"

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/linux/DriveBus.h"

#include <array>

namespace OndelCore::platform {

namespace {

struct ProtocolName {
    std::string_view inDatabase;
    std::string_view shown;
};
constexpr std::array protocolNames = {
    ProtocolName{"ata", "SATA"},          ProtocolName{"usb", "USB"},
    ProtocolName{"nvme", "NVMe"},         ProtocolName{"scsi", "SCSI"},
    ProtocolName{"ieee1394", "FireWire"}, ProtocolName{"memstick", "Memory Stick"},
    ProtocolName{"cciss", "SCSI"},
};

std::optional<std::string> firstOf(std::optional<std::string> first, std::optional<std::string> second) {
    return first ? std::move(first) : std::move(second);
}

/// The vendor's name from the disk. PCI and virtio numbers are no names.
std::optional<std::string> vendorAttribute(const BlockDevice& disk) {
    auto vendor = readAttribute(disk.folder / "device/vendor");
    if ((vendor && vendor->starts_with("0x")) || hasAtaForVendor(disk))
        return std::nullopt;
    return vendor;
}

std::optional<std::string> modelAttribute(const BlockDevice& disk) {
    return firstOf(readAttribute(disk.folder / "device/model"), readAttribute(disk.folder / "device/name"));
}

std::optional<std::string> protocolIn(const DeviceProperties& properties) {
    const auto bus = propertyIn(properties, "ID_BUS");
    for (const ProtocolName& row : protocolNames)
        if (bus == row.inDatabase)
            return std::string(row.shown);
    return std::nullopt;
}

DriveDescription describe(const BlockDevice& disk, const SystemSources& sources) {
    const DeviceProperties properties = sources.database(disk.number);
    return {.deviceVendor = firstOf(propertyIn(properties, "ID_VENDOR"), vendorAttribute(disk)),
            .deviceModel = firstOf(propertyIn(properties, "ID_MODEL"),
                                   firstOf(propertyIn(properties, "ID_NAME"), modelAttribute(disk))),
            .busName = busOfDisk(disk).name,
            .deviceProtocol = protocolIn(properties)};
}

void keepCommon(std::optional<std::string>& value, const std::optional<std::string>& other) {
    if (value != other)
        value.reset();
}

} // namespace

std::optional<DriveDescription> describeDrive(const std::filesystem::path& volumeRoot,
                                              const SystemSources& sources) {
    const auto mount = mountOfPathIn(sources.mountTable.mounts(), volumeRoot, sources.patience);
    if (!mount)
        return std::nullopt;
    std::optional<DriveDescription> common;
    for (const BlockDevice& disk : blockStack(*mount, sources).wholeDisks) {
        const DriveDescription one = describe(disk, sources);
        if (!common) {
            common = one;
            continue;
        }
        keepCommon(common->deviceVendor, one.deviceVendor);
        keepCommon(common->deviceModel, one.deviceModel);
        keepCommon(common->busName, one.busName);
        keepCommon(common->deviceProtocol, one.deviceProtocol);
    }
    return common;
}

} // namespace OndelCore::platform
