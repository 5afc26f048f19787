#include "TarnwickKit/model/AnalyzerServices.h"

#include "OndelCore/health/DiskHealth.h"

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkEngine;
using OndelCore::volumes::Location;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;

AnalyzerServices AnalyzerServices::real() {
    AnalyzerServices services;
    services.runBenchmark = [](OndelCore::benchmark::BenchmarkPlan plan, std::filesystem::path folder,
                               BenchmarkEngine::Progress progress, std::stop_token stop) {
        return BenchmarkEngine().run(std::move(plan), std::move(folder), std::move(progress),
                                     std::move(stop));
    };
    services.cleanupOrphans = [](const std::filesystem::path& folder) {
        BenchmarkEngine::cleanupOrphans(folder);
    };
    services.loadVolume = [](const Location& location) { return VolumeInfo::load(location); };
    services.probeCapabilities = [](const Location& location) { return VolumeCapabilities::probe(location); };
    services.readHealth = [](const std::filesystem::path& path) {
        return OndelCore::health::DiskHealth::read(path);
    };
    services.driveIdentity = [](const std::filesystem::path& volumeURL) {
        const auto ask = [volumeURL] { return RunRecord::identityOf(volumeURL); };
        return OndelCore::platform::answerWithin(OndelCore::platform::volumePatience, ask)
            .value_or(DriveIdentity());
    };
    services.now = [] { return QDateTime::currentDateTimeUtc(); };
    return services;
}

} // namespace TarnwickKit::model
