#pragma once

#include "OndelCore/platform/volumes/PathFacts.h"

namespace OndelCore::platform {

/// What the names in a folder show.
struct FolderNames {
    LetterCase letterCase = LetterCase::unknown;
    bool hasCapitals = false; ///< as PathFacts::hasCapitals
};

/// Examines the names in the folder, then those in its parents on the same mount. Threads: any;
/// async-signal-safe. Fails: unknown.
FolderNames letterCaseNames(int folder);

} // namespace OndelCore::platform
