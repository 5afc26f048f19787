#pragma once

#include "OndelCore/benchmark/WorkingFolder.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <filesystem>
#include <functional>
#include <future>
#include <optional>
#include <system_error>
#include <thread>

namespace OndelCore::benchmark {

/// The target folder, opened once, with a working folder in it. A path that leads elsewhere later changes
/// nothing.
class RunPlace {
public:
    /// Waits until the volume answers, proves that the folder can be written, and makes the working folder.
    /// Fails: throws Cancelled, BenchmarkError::NotWritable, or std::system_error when the working folder
    /// cannot be made.
    RunPlace(const std::filesystem::path& folder, const std::function<bool()>& isCancelled);

    int target() const { return m_target.get(); }
    int workingFolder() const { return m_working->descriptor(); }

private:
    platform::FileDescriptor m_target;
    std::optional<WorkingFolder> m_working; ///< gone before the target is closed
};

/// Runs `work` on a thread of its own, which can confine itself for good, and waits for it. `work` hears
/// whether it got one: a machine without another thread measures all the same.
template <class Work>
auto onThreadOfItsOwn(const Work& work) {
    std::packaged_task<decltype(work(true))(bool)> task(work);
    auto result = task.get_future();
    std::thread thread;
    try {
        thread = std::thread([&task] { task(true); });
    } catch (const std::system_error&) {
        task(false);
    }
    if (thread.joinable())
        thread.join();
    return result.get();
}

} // namespace OndelCore::benchmark
