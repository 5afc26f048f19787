// Checks a folder's volume and prints what was found, for scripts/check-capacity and for looking.
//
//   check-folder FOLDER [--size BYTES] [--leave-free BYTES] [--quick] [--again SECONDS] [--phases]
//                [--stay-in PHASE]
//
// --stay-in: says so when that phase begins, and does nothing more.
//
// Status 0: all good, 3: defects, 1: the check failed.

#include "OndelCore/capacity/CapacityCheck.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <string>

using namespace OndelCore::capacity;

namespace {

void printPass(const char* name, const CapacityPass& pass) {
    std::printf("%s %lld bytes, %.1f MB/s, longest pause %.2f s", name, static_cast<long long>(pass.bytes),
                pass.bytesPerSecond() / 1e6, pass.evidence.longestPause);
    if (pass.shareAtDisk)
        std::printf(", at disk %.2f", *pass.shareAtDisk);
    std::printf("%s\n", pass.wentThroughCache ? ", through cache" : "");
}

void printDefect(const CapacityDefect& defect) {
    std::printf("  %s at %lld, %lld bytes", std::string(rawValue(defect.kind)).c_str(),
                static_cast<long long>(defect.offset), static_cast<long long>(defect.length));
    if (defect.holds)
        std::printf(", holds %lld", static_cast<long long>(*defect.holds));
    if (defect.flippedBits > 0)
        std::printf(", %lld bits", static_cast<long long>(defect.flippedBits));
    if (defect.error)
        std::printf(", %s", defect.error->message().c_str());
    std::printf("%s\n", defect.isOnlyLater ? ", only later" : "");
}

void print(const CapacityResult& result) {
    std::printf("planned %lld written %lld verified %lld wrong %lld unreadable %lld writeFailed %lld "
                "recovered %lld\n",
                static_cast<long long>(result.planned), static_cast<long long>(result.written),
                static_cast<long long>(result.verified), static_cast<long long>(result.wrong),
                static_cast<long long>(result.unreadable), static_cast<long long>(result.writeFailed),
                static_cast<long long>(result.recovered));
    printPass("write", result.write);
    printPass("read", result.read);
    if (result.readAgain)
        printPass("again", *result.readAgain);
    if (result.quick)
        std::printf(
            "quick: %s, reserved %lld, %lld samples %lld apart\n",
            result.quick->isSpread ? "spread" : "not spread", static_cast<long long>(result.quick->reserved),
            static_cast<long long>(result.quick->samples), static_cast<long long>(result.quick->spacing));
    if (result.earlyEnd)
        std::printf("ended early: %s\n", std::string(rawValue(*result.earlyEnd)).c_str());
    if (result.realSize)
        std::printf("real size: %s, %lld%s\n", std::string(rawValue(result.realSize->reason)).c_str(),
                    static_cast<long long>(result.realSize->bytes),
                    result.realSize->isExact ? ", exact" : "");
    constexpr std::size_t shown = 5;
    for (std::size_t i = 0; i < result.defects.size() && i < shown; ++i)
        printDefect(result.defects[i]);
    std::string kinds;
    for (const DefectKind kind : allDefectKinds)
        if (result.bytesOf(kind) > 0)
            kinds += ' ' + std::string(rawValue(kind)) + '=' + std::to_string(result.bytesOf(kind) / 4096);
    std::printf("verdict: %s; blocks:%s; runs: %zu\n",
                result.hasDefects() ? "defects" : (result.isProof() ? "good" : "nothing found"),
                kinds.empty() ? " none" : kinds.c_str(),
                result.defects.size() + static_cast<std::size_t>(result.furtherDefects));
    std::printf("seconds: %.2f\n", result.duration);
}

} // namespace

int main(int argc, char** argv) {
    CapacityPlan plan{.leaveFree = 0};
    bool showsPhases = false;
    std::string lastPhase;
    for (int i = 1; i < argc; ++i) {
        const std::string word = argv[i];
        const auto number = [&] { return i + 1 < argc ? std::atoll(argv[++i]) : 0; };
        if (word == "--size")
            plan.size = number();
        else if (word == "--leave-free")
            plan.leaveFree = number();
        else if (word == "--again")
            plan.again = std::chrono::seconds(number());
        else if (word == "--quick")
            plan.isQuick = true;
        else if (word == "--phases")
            showsPhases = true;
        else if (word == "--stay-in" && i + 1 < argc)
            lastPhase = argv[++i];
        else
            plan.folder = word;
    }
    try {
        std::string last;
        const auto result = CapacityCheck().run(plan, {}, [&](const CapacityProgress& now) {
            const std::string phase(rawValue(now.phase));
            if ((showsPhases || phase == lastPhase) && phase != last)
                std::printf("phase %s\n", phase.c_str()), std::fflush(stdout);
            while (phase == lastPhase)
                pause();
            last = phase;
        });
        print(result);
        return result.hasDefects() ? 3 : 0;
    } catch (const std::exception& failure) {
        std::printf("failed: %s\n", failure.what());
        return 1;
    }
}
