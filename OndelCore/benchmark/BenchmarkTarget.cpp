#include "OndelCore/benchmark/BenchmarkTarget.h"

#include "OndelCore/benchmark/TargetLookup.h"
#include "OndelCore/platform/volumes/PathFacts.h"

namespace fs = std::filesystem;

namespace OndelCore::benchmark {

namespace {

bool mayWrite(const fs::path& path) {
    const auto facts = platform::pathFacts(path);
    return facts && facts->mayWrite;
}

} // namespace

fs::path BenchmarkTarget::folder(const fs::path& path, const fs::path& home) {
    return targetFolder(path, home, {.isWritable = mayWrite});
}

fs::path targetFolder(const fs::path& path, const fs::path& home, const TargetLookup& system) {
    if (path != "/" && system.isWritable(path))
        return path;

    const auto volume = system.mountOfPath(path);
    if (volume && volume->mountPoint != "/" && system.isWritable(volume->mountPoint))
        return volume->mountPoint;

    if (volume && volume->mountPoint == "/")
        return home;
    const auto homeVolume = system.mountOfPath(home);
    if (volume && homeVolume && volume->device == homeVolume->device)
        return home;
    return path;
}

} // namespace OndelCore::benchmark
