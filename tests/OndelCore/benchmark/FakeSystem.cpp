#include "FakeSystem.h"

using namespace OndelCore::benchmark;

namespace test {

namespace {
template <class... Text>
std::string line(const Text&... text) {
    std::string whole;
    ((whole += text), ...);
    return whole;
}
} // namespace

FakeSystem::FakeSystem() {
    const auto note = [this](const auto&... text) { diary.push_back(line(text...)); };
    monotonicNanoseconds = [this, note] {
        note("clock");
        return ++seconds * 1'000'000'000;
    };
    freeBytes = [note](const auto&) {
        note("free");
        return std::int64_t{1} << 40;
    };
    read = [note](int file, void* bytes, std::size_t size) {
        note("read ", std::to_string(size));
        return ::read(file, bytes, size);
    };
    write = [note](int file, const void* bytes, std::size_t size) {
        note("write ", std::to_string(size));
        return ::write(file, bytes, size);
    };
    pread = [note](int file, void* bytes, std::size_t size, off_t offset) {
        note("pread ", std::to_string(size), " @ ", std::to_string(offset));
        return ::pread(file, bytes, size, offset);
    };
    pwrite = [note](int file, const void* bytes, std::size_t size, off_t offset) {
        note("pwrite ", std::to_string(size), " @ ", std::to_string(offset));
        return ::pwrite(file, bytes, size, offset);
    };
    flushToMedium = [note](int) {
        note("flush");
        return std::error_code();
    };
    confineWrites = [](int) { return false; }; // so that a test can do its worst from within the run
    tryAbilities = [](int) { return OndelCore::platform::TriedAbilities(); };
    evidenceClock = [] { return 0; };
    operationClock = evidenceClock;
    watchCircumstances = [](int) { return nullptr; };
    diskWitness = volumeWitness = [](int) { return nullptr; };
    trafficOfThisThread = [] { return std::nullopt; };
}

BenchmarkResult FakeSystem::run(const BenchmarkPlan& plan, const std::filesystem::path& folder) {
    return runInFolder(*this, plan, folder, flag, [this](const BenchmarkProgress& now) {
        onProgress(now);
        diary.push_back(line("progress ", rawValue(now.test), " ", std::to_string(now.completedBytes), "/",
                             std::to_string(now.totalBytes), " at ",
                             std::to_string(static_cast<int>(now.elapsed)), " s"));
    });
}

std::set<std::string> openDescriptors() {
    std::set<std::string> all;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code
            gone; // the loop's own descriptor is listed too, and that of another thread may be closed
        const std::string target = std::filesystem::read_symlink(entry, gone).string();
        if (!gone && !target.starts_with("/sys/") && !target.starts_with("/proc/"))
            all.insert(entry.path().filename().string() + " -> " + target);
    }
    return all;
}

BenchmarkResult withoutEvidence(BenchmarkResult result) {
    const auto clear = [](auto& test) {
        if (test)
            test->evidence = {};
    };
    clear(result.sequentialWrite), clear(result.sequentialRead), clear(result.fileOps);
    clear(result.randomRead), clear(result.randomWrite);
    for (auto* test : {&result.randomRead, &result.randomWrite})
        if (*test)
            (*test)->latency.reset();
    if (result.fileOps)
        for (FileOpResult FileOpsResult::* phase :
             {&FileOpsResult::create, &FileOpsResult::stat, &FileOpsResult::rename, &FileOpsResult::remove})
            ((*result.fileOps).*phase).latency.reset();
    return result;
}

std::string FakeSystem::failureOf(const BenchmarkPlan& plan, const std::filesystem::path& folder) {
    try {
        run(plan, folder);
        return {};
    } catch (const std::exception& failure) {
        return failure.what();
    }
}

BenchmarkPlan smallPlan(std::set<BenchmarkTest> tests, BenchmarkSize size) {
    return {std::move(tests), size, 4096, 4096, 4096, 3, 64, false, 0};
}

} // namespace test
