#pragma once

#include "OndelCore/platform/FileDescriptor.h"

#include <filesystem>

namespace examples::host {

/// A folder freed of what killed runs left in it.
///
/// The engine takes every working folder for a leftover, also that of a run going on. So this program sweeps
/// only where nobody measures at the same time, in a window or another start of it, which they tell each
/// other by a lock on the folder: shared while one measures, exclusive while one sweeps. The system drops it
/// with the process.
///
/// Owner: the object holds the shared lock, so that no sweep begins before the engine has taken its own.
/// Fails: silently; where folders cannot be locked nothing is swept.
class SweptFolder {
public:
    /// Blocks on the file system, and while another start sweeps.
    explicit SweptFolder(const std::filesystem::path& folder);

private:
    OndelCore::platform::FileDescriptor m_lock;
};

} // namespace examples::host
