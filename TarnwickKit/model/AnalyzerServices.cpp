#include "TarnwickKit/model/AnalyzerServices.h"

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkEngine;

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
    services.now = [] { return QDateTime::currentDateTimeUtc(); };
    return services;
}

} // namespace TarnwickKit::model
