#pragma once

#include "OndelCore/platform/storage/TriedAbilities.h"

namespace OndelCore::platform {

/// Tries the abilities with temporary files in the open folder `folder`. Writes and flushes less than 100
/// KiB. Threads: any; blocks as long as the file system does. Fails: each ability is absent by itself.
TriedAbilities tryAbilities(int folder);

} // namespace OndelCore::platform
