#include "TarnwickKit/model/runs/RunEvidence.h"

namespace TarnwickKit::model {

RunEvidence RunEvidence::from(const OndelCore::benchmark::BenchmarkResult& result) {
    RunEvidence evidence;
    const auto take = [](const auto& test, auto& place) {
        if (test)
            place = test->evidence;
    };
    take(result.sequentialWrite, evidence.sequentialWrite);
    take(result.sequentialRead, evidence.sequentialRead);
    take(result.randomRead, evidence.randomRead);
    take(result.randomWrite, evidence.randomWrite);
    take(result.fileOps, evidence.fileOps);
    if (result.randomRead)
        evidence.randomReadLatency = result.randomRead->latency;
    if (result.randomWrite)
        evidence.randomWriteLatency = result.randomWrite->latency;
    if (result.fileOps) {
        evidence.createLatency = result.fileOps->create.latency;
        evidence.statLatency = result.fileOps->stat.latency;
        evidence.renameLatency = result.fileOps->rename.latency;
        evidence.deleteLatency = result.fileOps->remove.latency;
    }
    evidence.circumstances = result.circumstances;
    return evidence;
}

} // namespace TarnwickKit::model
