#include "OndelCore/benchmark/DataFile.h"

#include "OndelCore/platform/process/SystemCalls.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>

#include <new>

namespace OndelCore::benchmark {

BlockBuffer::BlockBuffer(std::int64_t blockSize) {
    const auto size = static_cast<std::size_t>(blockSize);
    void* bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED)
        throw std::bad_alloc();
    m_bytes = {static_cast<std::byte*>(bytes), size};
}

BlockBuffer::~BlockBuffer() { munmap(m_bytes.data(), m_bytes.size()); }

void BlockBuffer::fillWithRandomBytes() { platform::fillRandom(m_bytes.data(), m_bytes.size()); }

DataFile::DataFile(const TestRun& run, int openFlags, std::string_view failurePrefix)
    : m_run(run)
    , m_file(run.dataFile.open(openFlags)) {
    if (!m_file)
        throw ioError(failurePrefix, errno);
    if (run.plan.bypassCache)
        m_cacheBypass = platform::CacheBypass(m_file.get());
}

std::int64_t DataFile::length() const {
    struct stat facts{};
    fstat(m_file.get(), &facts);
    return facts.st_size;
}

std::optional<std::error_code> DataFile::flush() {
    const std::int64_t start = m_run.system.evidenceClock();
    const std::error_code error = m_run.system.flushToMedium(m_file.get());
    m_flushDuration = static_cast<double>(m_run.system.evidenceClock() - start) * 1e-9;
    return error ? std::optional(error) : std::nullopt;
}

void DataFile::tell(TestEvidence& evidence) const {
    evidence.isBypassRefused = m_run.plan.bypassCache && !m_cacheBypass.isOn();
    evidence.refusedTransfers = m_cacheBypass.refusedTransfers();
    evidence.flushDuration = m_flushDuration;
}

} // namespace OndelCore::benchmark
