#include "OndelCore/platform/drives/linux/DriveBus.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string_view>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace OndelCore::platform {

namespace {

struct PathRule {
    std::string_view prefix; ///< of a folder in the disk's path, followed by a digit
    std::string_view bus;
    bool isExternal;
};

// The first row that matches a folder in the path decides: a SATA disk behind a USB bridge is a USB disk.
constexpr std::array pathRules = {
    PathRule{"usb", "USB", true},        PathRule{"fw", "FireWire", true},
    PathRule{"session", "iSCSI", true},  PathRule{"rport-", "Fibre Channel", true},
    PathRule{"ata", "SATA", false},      PathRule{"end_device-", "SAS", false},
    PathRule{"virtio", "VirtIO", false}, PathRule{"vbd-", "Xen", false},
};

/// The names that the disks of virtual machines give themselves. NVMe disks have no vendor.
struct VirtualDisk {
    std::string_view vendor;
    std::string_view model;
};
constexpr std::array virtualDisks = {
    VirtualDisk{"", "QEMU "},         VirtualDisk{"", "VMware Virtual "},
    VirtualDisk{"VMware", "Virtual"}, VirtualDisk{"Msft", "Virtual Disk"},
    VirtualDisk{"", "VBOX "},         VirtualDisk{"", "ORCL-VBOX-"},
    VirtualDisk{"Google", "Persist"}, VirtualDisk{"", "nvme_card-pd"},
    VirtualDisk{"", "Virtual HDD"},   VirtualDisk{"", "Amazon Elastic Block Store"},
};

bool isNumbered(std::string_view name, std::string_view prefix) {
    return name.size() > prefix.size() && name.starts_with(prefix) &&
           std::isdigit(static_cast<unsigned char>(name[prefix.size()]));
}

/// The kernel marks devices on external ports (Thunderbolt, USB4) as removable.
bool isBehindExternalPort(fs::path folder) {
    for (; folder.has_relative_path(); folder = folder.parent_path())
        if (readAttribute(folder / "removable") == "removable")
            return true;
    return false;
}

DriveBus nvmeBus(const BlockDevice& disk) {
    for (const fs::path& controller : nvmeControllers(disk)) {
        const auto transport = readAttribute(controller / "transport");
        if (transport && transport != "pcie")
            return {"NVMe over Fabrics", true};
        if (isBehindExternalPort(controller))
            return {"Thunderbolt", true};
    }
    return {"NVMe", false};
}

DriveBus cardBus(const BlockDevice& disk) {
    if (readAttribute(disk.folder / "device" / "type") == "MMC")
        return {"eMMC", false};
    return {"SD", true};
}

} // namespace

std::vector<fs::path> nvmeControllers(const BlockDevice& wholeDisk) {
    std::vector<fs::path> controllers;
    if (!isNumbered(wholeDisk.name, "nvme"))
        return controllers;
    std::error_code failed;
    // The folder above is the controller's, or, if several may share the namespace, that of their subsystem
    // with links to them.
    const fs::path above = wholeDisk.folder.parent_path();
    if (fs::exists(above / "transport", failed))
        controllers.push_back(above);
    for (fs::directory_iterator entry(above, failed), end; !failed && entry != end; entry.increment(failed)) {
        std::error_code broken;
        const fs::path controller = fs::canonical(entry->path(), broken);
        if (!broken && entry->is_symlink(broken) && isNumbered(entry->path().filename().native(), "nvme"))
            controllers.push_back(controller);
    }
    return controllers;
}

bool isOfVirtualMachine(const BlockDevice& wholeDisk) {
    const auto startsWith = [](const std::optional<std::string>& text, std::string_view prefix) {
        return text && text->starts_with(prefix);
    };
    const bool isParavirtual = std::ranges::any_of(wholeDisk.folder, [](const fs::path& part) {
        return isNumbered(part.native(), "virtio") || isNumbered(part.native(), "vbd-");
    });
    const auto vendor = readAttribute(wholeDisk.folder / "device/vendor");
    const auto model = readAttribute(wholeDisk.folder / "device/model");
    return isParavirtual || std::ranges::any_of(virtualDisks, [&](const VirtualDisk& row) {
               return (row.vendor.empty() || startsWith(vendor, row.vendor)) && startsWith(model, row.model);
           });
}

bool hasAtaForVendor(const BlockDevice& wholeDisk) {
    const std::string vendor = readAttribute(wholeDisk.folder / "device/vendor").value_or("");
    return std::string_view(vendor).substr(0, vendor.find_last_not_of(' ') + 1) == "ATA";
}

DriveBus busOfDisk(const BlockDevice& wholeDisk) {
    if (isNumbered(wholeDisk.name, "nvme"))
        return nvmeBus(wholeDisk);
    if (isNumbered(wholeDisk.name, "mmcblk"))
        return cardBus(wholeDisk);
    if (isNumbered(wholeDisk.name, "nbd") || isNumbered(wholeDisk.name, "rbd"))
        return {std::nullopt, true};
    for (const PathRule& rule : pathRules) {
        const bool matches =
            std::any_of(wholeDisk.folder.begin(), wholeDisk.folder.end(),
                        [&](const fs::path& part) { return isNumbered(part.native(), rule.prefix); });
        if (!matches)
            continue;
        if (!rule.isExternal && isBehindExternalPort(wholeDisk.folder.parent_path()))
            return {"Thunderbolt", true};
        // A SATA disk on a SAS controller.
        if (rule.bus == "SAS" && hasAtaForVendor(wholeDisk))
            return {"SATA", false};
        return {std::string(rule.bus), rule.isExternal};
    }
    return {};
}

} // namespace OndelCore::platform
