#include "OndelCore/benchmark/FileOpsTest.h"

#include "OndelCore/SaturatingMath.h"
#include "OndelCore/benchmark/evidence/OperationTimer.h"
#include "OndelCore/platform/storage/OpenFolders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <vector>

namespace OndelCore::benchmark {

namespace {

/// Fails: throws std::system_error.
platform::FileDescriptor madeFolder(int parent) {
    constexpr const char* name = "fops";
    platform::FileDescriptor folder;
    if (mkdirat(parent, name, S_IRWXU | S_IRWXG | S_IRWXO) == 0)
        folder = platform::openInnerFolder(parent, name);
    if (!folder)
        throw std::system_error(errno, std::generic_category(), "mkdir");
    return folder;
}

std::vector<std::string> namesOf(std::int64_t count) {
    std::vector<std::string> names;
    names.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        names.push_back("f" + std::to_string(i));
    return names;
}

std::vector<std::string> renamed(const std::vector<std::string>& names) {
    std::vector<std::string> newNames;
    newNames.reserve(names.size());
    for (const std::string& name : names)
        newNames.push_back(name + ".r");
    return newNames;
}

/// Counts the steps of the whole test and tells the listener of every 256th, across the phases.
class Steps {
public:
    Steps(const TestRun& run, std::int64_t count)
        : m_run(run)
        , m_total(saturatingMultiply(4, count))
        , m_start(run.now())
        , m_timer(run.system.operationClock) {}

    void report() const {
        m_run.progress({BenchmarkTest::fileOps, m_done, m_total, 0, m_run.now() - m_start});
    }

    void finishedOne() {
        ++m_done;
        if (m_done % 256 == 0) {
            report();
            m_timer.begin();
        }
    }

    /// Does `operation` for each index below `count`.
    template <class Operation>
    void forEach(std::size_t count, Operation operation) {
        m_timer.begin();
        for (std::size_t i = 0; i < count; ++i) {
            m_run.throwIfCancelled();
            operation(i);
            m_timer.endedOne();
            finishedOne();
        }
    }

    /// Of the operations since it was asked last.
    std::optional<Latency> takeLatency() { return m_timer.takeLatency(); }
    void tell(TestEvidence& evidence) const { m_timer.tell(evidence); }

private:
    const TestRun& m_run;
    std::int64_t m_total;
    std::int64_t m_done = 0;
    double m_start;
    OperationTimer m_timer;
};

void createFile(int folder, const std::string& name) {
    const int file =
        openat(folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        throw ioError("create: ", errno);
    close(file);
}

void renameFile(int folder, const std::string& from, const std::string& to) {
    if (renameat(folder, from.c_str(), folder, to.c_str()) != 0)
        throw ioError("rename: ", errno);
}

void deleteFile(int folder, const std::string& name) {
    if (unlinkat(folder, name.c_str(), 0) != 0)
        throw ioError("unlink: ", errno);
}

} // namespace

FileOpsResult fileOps(const TestRun& run, int parent, std::int64_t count) {
    const platform::FileDescriptor made = madeFolder(parent);
    const int folder = made.get();
    const std::vector<std::string> names = namesOf(count);
    std::vector<std::string> newNames;
    Steps steps(run, count);
    const auto timed = [&](auto phase) -> FileOpResult {
        const double start = run.now();
        phase();
        const double duration = run.now() - start;
        return {count, duration, steps.takeLatency()};
    };

    steps.report();
    FileOpsResult result;
    result.create =
        timed([&] { steps.forEach(names.size(), [&](std::size_t i) { createFile(folder, names[i]); }); });
    result.stat = timed([&] {
        struct stat facts{};
        steps.forEach(names.size(),
                      [&](std::size_t i) { fstatat(folder, names[i].c_str(), &facts, AT_SYMLINK_NOFOLLOW); });
    });
    result.rename = timed([&] {
        newNames = renamed(names); // inside the phase: runs stay comparable with those of other platforms
        steps.forEach(names.size(), [&](std::size_t i) { renameFile(folder, names[i], newNames[i]); });
    });
    result.remove = timed(
        [&] { steps.forEach(newNames.size(), [&](std::size_t i) { deleteFile(folder, newNames[i]); }); });
    steps.report();
    steps.tell(result.evidence);
    return result;
}

} // namespace OndelCore::benchmark
