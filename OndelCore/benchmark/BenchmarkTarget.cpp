#include "OndelCore/benchmark/BenchmarkTarget.h"

#include <unistd.h>

#include <system_error>

namespace fs = std::filesystem;

namespace OndelCore::benchmark {

bool BenchmarkTarget::mayWrite(const fs::path& path) { return access(path.c_str(), W_OK) == 0; }

fs::path BenchmarkTarget::folder(const fs::path& path, const fs::path& home) {
    return folder(path, home, Lookup{});
}

fs::path BenchmarkTarget::folder(const fs::path& path, const fs::path& home, const Lookup& system) {
    if (path != "/" && system.isWritable(path))
        return path;

    std::error_code failure;
    const fs::path resolved = fs::canonical(path, failure);
    const auto volume = system.mountOfPath(failure ? path : resolved);
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
