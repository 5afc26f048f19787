#include "OndelCore/benchmark/evidence/RunWitness.h"

namespace OndelCore::benchmark {

namespace {

double secondsBetween(std::int64_t from, std::int64_t to) { return static_cast<double>(to - from) * 1e-9; }

std::optional<std::int64_t> difference(const std::optional<std::int64_t>& before,
                                       const std::optional<std::int64_t>& after) {
    return before && after && *after >= *before ? std::optional(*after - *before) : std::nullopt;
}

using Counters = std::optional<platform::DiskCounters>;

std::optional<Traffic> readBetween(const Counters& before, const Counters& after) {
    return before && after
               ? std::optional(Traffic{after->readBytes - before->readBytes, after->reads - before->reads})
               : std::nullopt;
}

std::optional<Traffic> writtenBetween(const Counters& before, const Counters& after) {
    return before && after ? std::optional(Traffic{after->writtenBytes - before->writtenBytes,
                                                   after->writes - before->writes})
                           : std::nullopt;
}

} // namespace

RunWitness::RunWitness(const EngineEnvironment& system, int volume)
    : m_system(system)
    , m_disks(system.diskWitness(volume))
    , m_volume(system.volumeWitness(volume))
    , m_start(system.evidenceClock()) {}

void RunWitness::tell(const View& before, const View& after, TestEvidence& evidence) const {
    evidence.began = secondsBetween(m_start, before.time);
    evidence.ended = secondsBetween(m_start, after.time);
    evidence.diskReads = readBetween(before.disks, after.disks);
    evidence.diskWrites = writtenBetween(before.disks, after.disks);
    evidence.volumeReads = readBetween(before.volume, after.volume);
    evidence.volumeWrites = writtenBetween(before.volume, after.volume);
    if (before.thread && after.thread) {
        evidence.threadReads = difference(before.thread->readBytes, after.thread->readBytes);
        evidence.threadWrites = difference(before.thread->writtenBytes, after.thread->writtenBytes);
    }
}

RunWitness::View RunWitness::look() {
    return {m_system.evidenceClock(), m_disks ? m_disks->counters() : std::nullopt,
            m_volume ? m_volume->counters() : std::nullopt, m_system.trafficOfThisThread()};
}

} // namespace OndelCore::benchmark
