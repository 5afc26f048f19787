#pragma once

#include <filesystem>

namespace OndelCore::volumes {

/// Questions about the right to use a folder.
/// Threads: any; the functions keep no state.
class VolumeAccess {
public:
    VolumeAccess() = delete;

    /// Whether a file can really be made, written and flushed in `folder`, proved by doing so: permissions
    /// and mount flags are not asked. The probe (".ondel-writeprobe-" and a UUID) is removed again. Fails:
    /// any failing step means "no".
    static bool isWritable(const std::filesystem::path& folder);
};

} // namespace OndelCore::volumes
