#include "OndelCore/benchmark/DataFile.h"

#include "OndelCore/platform/ErrorText.h"
#include "OndelCore/platform/Random.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <new>

namespace OndelCore::benchmark {

BenchmarkError ioError(std::string_view prefix, int error) {
    return BenchmarkError(BenchmarkError::Io{std::string(prefix) + platform::errorText(error)});
}

BlockBuffer::BlockBuffer(std::int64_t blockSize)
    : m_bytes(static_cast<std::byte*>(
          std::aligned_alloc(BenchmarkPlan::page, static_cast<std::size_t>(blockSize))))
    , m_size(static_cast<std::size_t>(blockSize)) {
    if (!m_bytes)
        throw std::bad_alloc();
}

void BlockBuffer::fillWithRandomBytes() { platform::fillRandom(m_bytes.get(), m_size); }

DataFile::DataFile(const TestRun& run, int openFlags, std::string_view failurePrefix)
    : m_run(run)
    , m_file(open(run.dataFile.c_str(), openFlags | O_CLOEXEC, S_IRUSR | S_IWUSR)) {
    if (!m_file)
        throw ioError(failurePrefix, errno);
    if (run.plan.bypassCache)
        m_cacheBypass = platform::CacheBypass(m_file.get());
}

std::int64_t DataFile::length() const {
    struct stat facts {};
    fstat(m_file.get(), &facts);
    return facts.st_size;
}

} // namespace OndelCore::benchmark
