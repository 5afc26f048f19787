#include "OndelCore/benchmark/FileOpsTest.h"

#include "OndelCore/benchmark/SaturatingMath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <vector>

namespace OndelCore::benchmark {

namespace {

std::vector<std::string> pathsOf(const std::filesystem::path& dir, std::int64_t count) {
    std::vector<std::string> paths;
    paths.reserve(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        paths.push_back(dir.native() + "/f" + std::to_string(i));
    return paths;
}

std::vector<std::string> renamed(const std::vector<std::string>& paths) {
    std::vector<std::string> newPaths;
    newPaths.reserve(paths.size());
    for (const std::string& path : paths)
        newPaths.push_back(path + ".r");
    return newPaths;
}

/// Counts the steps of the whole test and tells the listener of every 256th, across the phases.
class Steps {
public:
    Steps(const TestRun& run, std::int64_t count)
        : m_run(run)
        , m_total(saturatingMultiply(4, count))
        , m_start(run.now()) {}

    void report() const {
        m_run.progress({BenchmarkTest::fileOps, m_done, m_total, 0, m_run.now() - m_start});
    }

    void finishedOne() {
        ++m_done;
        if (m_done % 256 == 0)
            report();
    }

    /// Does `operation` for each index below `count`.
    template <class Operation>
    void forEach(std::size_t count, Operation operation) {
        for (std::size_t i = 0; i < count; ++i) {
            m_run.throwIfCancelled();
            operation(i);
            finishedOne();
        }
    }

private:
    const TestRun& m_run;
    std::int64_t m_total;
    std::int64_t m_done = 0;
    double m_start;
};

void createFile(const std::string& path) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (file < 0)
        throw ioError("create: ", errno);
    close(file);
}

void renameFile(const std::string& from, const std::string& to) {
    if (std::rename(from.c_str(), to.c_str()) != 0)
        throw ioError("rename: ", errno);
}

void deleteFile(const std::string& path) {
    if (unlink(path.c_str()) != 0)
        throw ioError("unlink: ", errno);
}

} // namespace

FileOpsResult fileOps(const TestRun& run, const std::filesystem::path& dir, std::int64_t count) {
    std::filesystem::create_directories(dir);
    const std::vector<std::string> paths = pathsOf(dir, count);
    std::vector<std::string> newPaths;
    const auto timed = [&](auto phase) -> FileOpResult {
        const double start = run.now();
        phase();
        return {count, run.now() - start};
    };

    Steps steps(run, count);
    steps.report();
    FileOpsResult result;
    result.create = timed([&] { steps.forEach(paths.size(), [&](std::size_t i) { createFile(paths[i]); }); });
    result.stat = timed([&] {
        struct stat facts {};
        steps.forEach(paths.size(), [&](std::size_t i) { lstat(paths[i].c_str(), &facts); });
    });
    result.rename = timed([&] {
        newPaths = renamed(paths); // inside the phase: runs stay comparable with those of other platforms
        steps.forEach(paths.size(), [&](std::size_t i) { renameFile(paths[i], newPaths[i]); });
    });
    result.remove =
        timed([&] { steps.forEach(newPaths.size(), [&](std::size_t i) { deleteFile(newPaths[i]); }); });
    steps.report();
    return result;
}

} // namespace OndelCore::benchmark
