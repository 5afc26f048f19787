#pragma once

#include "OndelCore/benchmark/TestRun.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/platform/storage/CacheBypass.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <system_error>

namespace OndelCore::benchmark {

/// Memory for one block, mapped for the test alone: aligned to pages, as direct transfers require, and given
/// back to the system at its end.
class BlockBuffer {
public:
    /// Fails: throws std::bad_alloc.
    explicit BlockBuffer(std::int64_t blockSize);
    ~BlockBuffer();
    BlockBuffer(const BlockBuffer&) = delete;
    BlockBuffer& operator=(const BlockBuffer&) = delete;

    /// Written blocks hold random bytes: a drive that compresses or drops zeros gains nothing by them.
    void fillWithRandomBytes();

    /// The first `length` bytes. Units: bytes.
    std::span<std::byte> first(std::int64_t length) const {
        return m_bytes.first(static_cast<std::size_t>(length));
    }

private:
    std::span<std::byte> m_bytes;
};

/// The data file, opened for one test and closed with the object.
///
/// The transfers answer as the system calls of their names do: bytes moved, or negative with errno set. One
/// that a signal broke off is made again, unless the run has been cancelled meanwhile.
class DataFile {
public:
    /// `openFlags`: as DataFilePlace takes them. Fails: throws BenchmarkError with `failurePrefix`.
    DataFile(const TestRun& run, int openFlags, std::string_view failurePrefix);

    /// 0 when the system does not tell. Units: bytes.
    std::int64_t length() const;

    ssize_t read(std::span<std::byte> bytes) {
        return transfer([&] { return m_run.system.read(m_file.get(), bytes.data(), bytes.size()); });
    }
    ssize_t write(std::span<const std::byte> bytes) {
        return transfer([&] { return m_run.system.write(m_file.get(), bytes.data(), bytes.size()); });
    }
    ssize_t readAt(std::int64_t offset, std::span<std::byte> bytes) {
        return transfer([&] { return m_run.system.pread(m_file.get(), bytes.data(), bytes.size(), offset); });
    }
    ssize_t writeAt(std::int64_t offset, std::span<const std::byte> bytes) {
        return transfer(
            [&] { return m_run.system.pwrite(m_file.get(), bytes.data(), bytes.size(), offset); });
    }

    /// Returns when the medium holds the data, or with the reason why it may not.
    std::optional<std::error_code> flush();

    /// Adds what the file saw of the cache bypass and of its flush.
    void tell(TestEvidence& evidence) const;

private:
    template <class Call>
    ssize_t transfer(Call call) {
        for (;;) {
            const ssize_t moved = m_cacheBypass.perform(call);
            if (moved >= 0 || errno != EINTR) [[likely]]
                return moved;
            m_run.throwIfCancelled();
        }
    }

    const TestRun& m_run;
    platform::FileDescriptor m_file;
    platform::CacheBypass m_cacheBypass;
    std::optional<double> m_flushDuration;
};

} // namespace OndelCore::benchmark
