#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <stop_token>

template <typename Value>
class QFuture;

namespace OndelCore::benchmark {

/// Measures a folder's file system with plain blocking calls on one worker thread.
///
/// Everything is written into a hidden working folder inside `folder`, which is removed whatever happens. A
/// run returns everything it was asked for, or an error; never a part. Runs may go on at once, in one folder
/// too, and each slows the others.
///
/// Threads: any, several on one engine too; it keeps no state. Owner: each run, of copies of all that it was
/// given. Engine, future and caller may be gone before it ends; what `progress` refers to must not. A process
/// may end during a run. The working folder then stays until the next `cleanupOrphans`.
class ONDEL_PUBLIC BenchmarkEngine {
public:
    using Progress = ProgressListener;

    /// Runs, and returns when the working folder is gone. Takes nothing but the standard library to call.
    ///
    /// `progress`, `stop` and failures: as `run`; what its future throws is thrown here. Threads: any;
    /// blocks for the whole run, and `progress` is called on another thread.
    BenchmarkResult measure(const BenchmarkPlan& plan, const std::filesystem::path& folder,
                            const Progress& progress = {}, std::stop_token stop = {}) const;

    /// Starts a run and returns at once. Callers include `<QFuture>`.
    ///
    /// `progress` is called on the worker from inside the measured loops: its time counts against the rate,
    /// so it must return quickly and never wait for the interface. That thread may write nothing but the
    /// run's own files, nor may threads that it starts; it ends with the run. `stop`: a request ends the run
    /// within one system call, with `Cancelled`; a closing flush is waited for. This is the one way to end a
    /// run: QFuture::cancel() merely drops the result of a run that goes on.
    ///
    /// Threads: any; needs no event loop. The future finishes on the worker, after the working folder is
    /// gone. Fails: the future throws BenchmarkError, Cancelled, or std::system_error when the working folder
    /// cannot be made; a negative count in the plan stops the process.
    QFuture<BenchmarkResult> run(BenchmarkPlan plan, std::filesystem::path folder, Progress progress,
                                 std::stop_token stop = {}) const;

    /// Removes the working folders that killed runs left in `folder`. One that is in use, by a run or by
    /// another sweep on this machine, is left alone, where the file system can lock folders.
    /// Threads: any; blocks on the file system. Fails: silently, name by name.
    static void cleanupOrphans(const std::filesystem::path& folder);

    /// The same, trying again until nothing is in use there or `patience` is over. Answers how many working
    /// folders are in use still.
    static std::size_t cleanupOrphans(const std::filesystem::path& folder,
                                      std::chrono::milliseconds patience);
};

} // namespace OndelCore::benchmark
