#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/capacity/CapacityPlan.h"
#include "OndelCore/capacity/CapacityProgress.h"
#include "OndelCore/capacity/CapacityResult.h"

#include <stop_token>

namespace OndelCore::capacity {

/// Checks whether a volume is as large as it says, and whether it returns what it is given.
///
/// The free space is filled with files of at most 1 GiB in a hidden working folder, like that of a
/// measurement: locked while it is in use, removed whatever happens, and found by
/// BenchmarkEngine::cleanupOrphans when the program was killed. Each block of 4096 bytes differs from every
/// other of this and of any other check, so that a wrong one tells what it is. No file of others is touched;
/// but on a device with a false capacity every write beyond its real size may destroy what lies there, as
/// any use of it would.
///
/// The check keeps no state. Memory: less than 64 MiB, whatever the size.
class ONDEL_PUBLIC CapacityCheck {
public:
    /// Checks, and returns when the working folder is gone. Takes nothing but the standard library to call.
    ///
    /// `progress`: about every 100 ms and at the start of each phase, one call at a time. It must return
    /// quickly and may write no files. Calls stay away while the volume does not answer.
    /// `stop`: a request ends the check within one system call (at most 1 MiB; a flush is waited for), in
    /// each phase.
    ///
    /// Threads: any; blocks for the whole check, and `progress` is called on another thread.
    /// Fails: throws benchmark::BenchmarkError (NotWritable; InsufficientSpace: `size` and `leaveFree` are
    /// more than is free, or nothing is left; Io: the volume is gone, or took nothing at all), Cancelled, or
    /// std::system_error when the working folder cannot be made. Defects of the volume are no failures: they
    /// stand in the result, as does the reason why less was written than planned.
    CapacityResult run(const CapacityPlan& plan, const std::stop_token& stop = {},
                       const CapacityListener& progress = {}) const;
};

} // namespace OndelCore::capacity
