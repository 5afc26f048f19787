#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "support/TemporaryFolder.h"

#include <sys/types.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace test {

/// A fake machine for one test: a device tree, a device database and a mount table in a temporary folder,
/// used through `sources()`.
class FakeMachine {
public:
    using Attributes = std::map<std::string, std::string>;

    FakeMachine();

    /// A block device whose folder is `place` below the tree's "devices", with files for its attributes
    /// ("queue/optimal_io_size", "device/model").
    std::filesystem::path addBlockDevice(const std::string& place, dev_t number,
                                         const Attributes& attributes = {});
    /// Writes attributes of any folder below the tree's "devices".
    void setAttributes(const std::string& place, const Attributes& attributes);
    /// `upper` is made of `lower`, both as given to addBlockDevice.
    void stack(const std::string& upper, const std::string& lower);
    /// A Btrfs in use on these devices, as given to addBlockDevice.
    void joinBtrfs(const std::string& identifier, const std::vector<std::string>& devices);
    void setDatabase(dev_t number, OndelCore::platform::DeviceProperties properties);

    struct Row {
        std::string type = "ext4";
        dev_t device = 0;
        std::string source = "none";
        std::string options = "rw,relatime";
        std::string superOptions = "rw";
    };
    /// Replaces the mount table by one row, for the real mount that holds `path`.
    void pretendMounted(const std::filesystem::path& path, const Row& row);
    void setMountTable(const std::string& text);

    OndelCore::platform::SystemSources sources() const;
    const std::filesystem::path& folder() const { return m_folder.path(); }

private:
    TemporaryFolder m_folder;
    std::map<dev_t, OndelCore::platform::DeviceProperties> m_database;
};

} // namespace test
