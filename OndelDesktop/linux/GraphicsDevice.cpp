#include "OndelDesktop/GraphicsDevice.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string_view>

namespace fs = std::filesystem;

namespace OndelDesktop {

namespace {

/// Kernel drivers whose render nodes have no graphics processor.
constexpr std::array<std::string_view, 2> driversWithoutProcessor{"vgem", "vkms"};

bool draws(const fs::path& node) {
    std::error_code error;
    const fs::path driver =
        fs::read_symlink(fs::path("/sys/class/drm") / node.filename() / "device/driver", error);
    if (error)
        return false;
    const std::string name = driver.filename().string();
    return std::ranges::find(driversWithoutProcessor, name) == driversWithoutProcessor.end() &&
           access(node.c_str(), R_OK | W_OK) == 0;
}

} // namespace

bool hasGraphicsDevice() {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator("/dev/dri", error))
        if (entry.path().filename().string().starts_with("renderD") && draws(entry.path()))
            return true;
    return false;
}

} // namespace OndelDesktop
