#include "OndelCore/volumes/FileUrl.h"
#include "fuzz/Fuzz.h"

/// A path that a URL names is absolute, and its own URL names it again.
void fuzz::read(Bytes bytes) {
    using namespace OndelCore::volumes;
    const auto path = localPath(bytes);
    if (!path)
        return;
    require(path->is_absolute());
    require(localPath(fileUrl(*path)) == path);
}
