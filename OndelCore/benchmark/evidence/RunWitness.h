#pragma once

#include "OndelCore/benchmark/EngineEnvironment.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/platform/drives/DiskWitness.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace OndelCore::benchmark {

/// Looks from outside at what the tests of one run do. Threads: one at a time, the one that measures.
class RunWitness {
public:
    /// `volume`: the target folder, open. Owner: `system` outlives the object.
    RunWitness(const EngineEnvironment& system, int volume);

    /// Makes a test's result, with the evidence of what happened meanwhile.
    template <class Test>
    auto observed(Test test) {
        const View before = look();
        auto result = test();
        tell(before, look(), result.evidence);
        return result;
    }

private:
    struct View {
        std::int64_t time;
        std::optional<platform::DiskCounters> disks;
        std::optional<platform::DiskCounters> volume;
        std::optional<platform::ThreadTraffic> thread;
    };
    View look();
    void tell(const View& before, const View& after, TestEvidence& evidence) const;

    const EngineEnvironment& m_system;
    std::unique_ptr<platform::DiskWitness> m_disks;
    std::unique_ptr<platform::DiskWitness> m_volume;
    std::int64_t m_start;
};

} // namespace OndelCore::benchmark
