#include "TarnwickKit/model/session/AnalyzerServices.h"

#include "OndelCore/health/DiskHealth.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <QFuture>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkEngine;
using OndelCore::volumes::Location;

namespace {

/// An answer after a minute is still taken. The thread that waits for a hanging volume must end some time.
constexpr std::chrono::minutes latePatience(10);

OndelCore::platform::SystemSources waitingFor(std::chrono::milliseconds patience) {
    OndelCore::platform::SystemSources sources;
    sources.patience = patience;
    return sources;
}

} // namespace

AnalyzerServices AnalyzerServices::real() {
    using namespace OndelCore::platform;
    AnalyzerServices services;
    services.runBenchmark = [](OndelCore::benchmark::BenchmarkPlan plan, std::filesystem::path folder,
                               BenchmarkEngine::Progress progress, std::stop_token stop) {
        return BenchmarkEngine().run(std::move(plan), std::move(folder), std::move(progress),
                                     std::move(stop));
    };
    services.checkCapacity = [](const OndelCore::capacity::CapacityPlan& plan, const std::stop_token& stop,
                                const OndelCore::capacity::CapacityListener& progress) {
        return OndelCore::capacity::CapacityCheck().run(plan, stop, progress);
    };
    services.cleanupOrphans = [](const std::filesystem::path& folder) {
        if (pathFacts(folder, PathQuestion::place, {.patience = latePatience}))
            BenchmarkEngine::cleanupOrphans(folder);
    };
    services.loadVolume = [](const Location& location) {
        return OndelCore::volumes::loadVolumeInfo(location, waitingFor(latePatience));
    };
    services.probeCapabilities = [](const Location& location) {
        return OndelCore::volumes::probeCapabilities(location, waitingFor(latePatience));
    };
    services.readHealth = [](const std::filesystem::path& path) {
        return OndelCore::health::DiskHealth::read(path);
    };
    services.driveIdentity = [](const std::filesystem::path& volumeURL) {
        return DriveInfo::identity(volumeURL, waitingFor(OndelCore::platform::volumePatience));
    };
    services.now = [] { return QDateTime::currentDateTimeUtc(); };
    return services;
}

} // namespace TarnwickKit::model
