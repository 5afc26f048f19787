#include "OndelCore/benchmark/WorkingFolder.h"

#include "OndelCore/platform/Storage.h"
#include "OndelCore/platform/Uuid.h"

#include <fcntl.h>
#include <sys/file.h>

#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace OndelCore::benchmark {

WorkingFolder::WorkingFolder(const fs::path& parent)
    : m_lock(open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    , m_path(parent / (std::string(namePrefix) + platform::newUuid())) {
    flock(m_lock.get(), LOCK_SH | LOCK_NB);
    fs::create_directories(m_path);
}

WorkingFolder::~WorkingFolder() { platform::removeTree(m_path); }

void WorkingFolder::removeAllIn(const fs::path& parent) {
    std::error_code failure;
    std::vector<fs::path> found;
    for (fs::directory_iterator entry(parent, failure), end; !failure && entry != end;
         entry.increment(failure))
        if (entry->path().filename().native().starts_with(namePrefix))
            found.push_back(entry->path());
    for (const fs::path& path : found)
        platform::removeTree(path);
}

} // namespace OndelCore::benchmark
