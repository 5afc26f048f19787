#pragma once

namespace OndelCore::platform {

/// Where a file system of a type keeps its data.
enum class FileSystemReach {
    device,  ///< on a block device or a pool of them
    memory,  ///< in memory, lost at power-off
    layered, ///< on other file systems of this machine
    network, ///< on another machine, or on the host of this virtual machine
};

} // namespace OndelCore::platform
