#pragma once

#include "OndelCore/platform/volumes/PathFacts.h"

namespace OndelCore::platform {

/// What the names of a folder tell.
struct FolderNames {
    LetterCase letterCase = LetterCase::unknown;
    bool hasCapitals = false; ///< as PathFacts::hasCapitals
};

/// Looks for a name with letters in the folder, then in those above it on the same mount.
/// Threads: any; async-signal-safe. Fails: unknown.
FolderNames namesIn(int folder);

} // namespace OndelCore::platform
