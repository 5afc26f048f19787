#include "OndelCore/benchmark/RunPlace.h"

#include "OndelCore/benchmark/BenchmarkError.h"
#include "OndelCore/platform/storage/OpenFolders.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/VolumeAccess.h"

#include <chrono>

namespace OndelCore::benchmark {

namespace {

/// Returns as soon as the volume of `folder` answers: this thread could not be ended inside of a request that
/// nobody answers. Fails: throws Cancelled.
void awaitAnswer(const std::filesystem::path& folder, const std::function<bool()>& isCancelled) {
    constexpr std::chrono::hours untilCancelled(24);
    const platform::Waiting waiting{.patience = untilCancelled, .isCancelled = isCancelled};
    if (!platform::pathFacts(folder, platform::PathQuestion::place, waiting))
        throw Cancelled();
}

} // namespace

RunPlace::RunPlace(const std::filesystem::path& folder, const std::function<bool()>& isCancelled) {
    awaitAnswer(folder, isCancelled);
    m_target = platform::openFolder(folder);
    const auto owner = m_target ? volumes::VolumeAccess::ownerOfNewFiles(m_target.get()) : std::nullopt;
    if (!owner)
        throw BenchmarkError(BenchmarkError::NotWritable{});
    m_working.emplace(m_target.get(), *owner);
}

} // namespace OndelCore::benchmark
