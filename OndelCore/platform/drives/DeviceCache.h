#pragma once

namespace OndelCore::platform {

/// Drops the system's cache of a block device where a program serves the file system on it (FUSE): such a
/// program reads and writes through that cache. The system's own file systems do not use it for the content
/// of files. What is not on the medium yet is written first. `folder`: open, on the file system. Threads:
/// any; blocks on the device. Fails: silently, where the user may not read the device.
void dropDeviceCache(int folder);

} // namespace OndelCore::platform
