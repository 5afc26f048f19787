#include "examples/host/SweptFolder.h"

#include "OndelCore/benchmark/BenchmarkEngine.h"

#include <fcntl.h>
#include <sys/file.h>

namespace examples::host {

SweptFolder::SweptFolder(const std::filesystem::path& folder)
    : m_lock(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (!m_lock)
        return;
    if (flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0)
        OndelCore::benchmark::BenchmarkEngine::cleanupOrphans(folder);
    flock(m_lock.get(), LOCK_SH);
}

} // namespace examples::host
