#include "Tarnwick/OpenUrls.h"
#include "fuzz/Fuzz.h"

/// A path that a URL means is absolute, and means itself as a URL.
void fuzz::read(Bytes bytes) {
    const auto path = localPath(bytes);
    if (!path)
        return;
    require(path->is_absolute());
    require(localPath(fileUrl(*path)) == path);
}
