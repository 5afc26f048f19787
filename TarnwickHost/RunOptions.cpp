#include "TarnwickHost/RunOptions.h"

#include "TarnwickHost/CommandLine.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Place.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <set>
#include <string>
#include <system_error>

using OndelCore::benchmark::allBenchmarkTests;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkSize;
using OndelCore::benchmark::BenchmarkTest;

namespace TarnwickHost {

namespace {

/// The window's interval, so that the peak and lowest rates of both can be compared.
constexpr double defaultSampleIntervalSeconds = 0.02;

// Larger values would exhaust the machine, and a killed run leaves its files behind.
constexpr Range sizeRange{0, std::int64_t{1} << 60};
constexpr Range blockRange{std::numeric_limits<std::int64_t>::min(), std::int64_t{1} << 30};
constexpr Range randomOpRange{0, 1'000'000'000};
constexpr Range fileOpRange{0, 1'000'000};

constexpr std::array options{
    Option{"--tests", "A,B",
           QT_TRANSLATE_NOOP("HostHelp",
                             "Tests to run, always in this order: sequentialWrite, sequentialRead,\n"
                             "randomRead, randomWrite, fileOps (default: all)")},
    Option{"--size", "BYTES|fill",
           QT_TRANSLATE_NOOP("HostHelp", "Size of the data file, or fill the disk (default: 5GiB)")},
    Option{"--leave-free", "BYTES",
           QT_TRANSLATE_NOOP("HostHelp", "What --size fill leaves free (default: 1GiB)")},
    Option{"--write-block", "BYTES",
           QT_TRANSLATE_NOOP("HostHelp", "Bytes per call, sequential write (default: 1MiB)")},
    Option{"--read-block", "BYTES",
           QT_TRANSLATE_NOOP("HostHelp", "Bytes per call, sequential read (default: 1MiB)")},
    Option{"--random-block", "BYTES",
           QT_TRANSLATE_NOOP("HostHelp", "Bytes per random operation (default: 4KiB)")},
    Option{"--random-ops", "N",
           QT_TRANSLATE_NOOP("HostHelp", "Operations in each random test (default: 10000)")},
    Option{"--file-ops", "N",
           QT_TRANSLATE_NOOP("HostHelp", "Files in the file-operations test (default: 1000)")},
    Option{"--cached", "",
           QT_TRANSLATE_NOOP("HostHelp", "Let the system cache the data file, as ordinary programs do")},
    Option{"--sample-interval", "S",
           QT_TRANSLATE_NOOP("HostHelp", "Least seconds between two samples (default: 0.02)")},
    Option{"--json", "",
           QT_TRANSLATE_NOOP("HostHelp",
                             "Print one JSON object: the plan, every figure, every sample, date,\n"
                             "folder, volume, file system, drive, kernel, and under \"evidence\" and\n"
                             "\"remarks\" what was observed and what it says")},
    Option{
        "--output", "FILE",
        QT_TRANSLATE_NOOP("HostHelp", "Write a run file there, for the window, for \"show\" and for others")},
    forceOption,
    Option{"--keep", "", QT_TRANSLATE_NOOP("HostHelp", "Add the run to the window's history")},
    Option{"--handoff", "",
           QT_TRANSLATE_NOOP("HostHelp",
                             "Write a run file for the window and for \"show\", and print its path\n"
                             "as the last line; with --json: as \"handoffFile\" in the object")},
    Option{"--card", "light|dark",
           QT_TRANSLATE_NOOP("HostHelp", "Draw a picture of the run to share, in light or dark colours, and\n"
                                         "print its path as the last line; with --json: as \"cardFile\"")},
};

std::set<BenchmarkTest> parsedTests(std::string_view list) {
    std::set<BenchmarkTest> tests;
    for (std::size_t start = 0; start <= list.size();) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        const std::string_view name = list.substr(start, end - start);
        const auto test = OndelCore::benchmark::benchmarkTest(name);
        if (!test) {
            std::string known;
            for (const BenchmarkTest each : allBenchmarkTests)
                known.append(known.empty() ? "" : ", ").append(rawValue(each));
            throw UsageError(HostUsage::tr("%1: there is no test %2, only %3")
                                 .arg(isolated("--tests"), inQuotes(name), isolated(known)));
        }
        tests.insert(*test);
        start = end + 1;
    }
    return tests;
}

BenchmarkSize parsedSize(const CommandLine& line) {
    const auto size = line.value("--size");
    const auto leaveFree = line.value("--leave-free");
    if (size == "fill")
        return BenchmarkSize::fillDisk(leaveFree ? byteCount("--leave-free", *leaveFree, sizeRange)
                                                 : BenchmarkSize::defaultLeaveFree);
    if (leaveFree)
        throw goesOnlyWith("--leave-free", "--size fill");
    return size ? BenchmarkSize::fixed(byteCount("--size", *size, sizeRange)) : BenchmarkPlan().size;
}

BenchmarkPlan parsedPlan(const CommandLine& line) {
    BenchmarkPlan plan;
    const auto bytes = [&](std::string_view option, std::int64_t& block) {
        if (const auto text = line.value(option))
            block = byteCount(option, *text, blockRange);
    };
    const auto count = [&](std::string_view option, Range range, std::int64_t& number) {
        if (const auto text = line.value(option))
            number = wholeNumber(option, *text, range);
    };
    if (const auto tests = line.value("--tests"))
        plan.tests = parsedTests(*tests);
    plan.size = parsedSize(line);
    bytes("--write-block", plan.writeBlockSize);
    bytes("--read-block", plan.readBlockSize);
    bytes("--random-block", plan.randomBlockSize);
    count("--random-ops", randomOpRange, plan.randomOpCount);
    count("--file-ops", fileOpRange, plan.fileOpCount);
    plan.bypassCache = !line.has("--cached");
    plan.sampleInterval = defaultSampleIntervalSeconds;
    if (const auto interval = line.value("--sample-interval"))
        plan.sampleInterval = seconds("--sample-interval", *interval);
    return plan;
}

std::optional<CardColors> parsedCard(const CommandLine& line) {
    const auto colors = line.value("--card");
    if (!colors)
        return std::nullopt;
    if (colors != "light" && colors != "dark")
        throw UsageError(
            HostUsage::tr("%1 is light or dark, not %2").arg(isolated("--card"), inQuotes(*colors)));
    return colors == "dark" ? CardColors::dark : CardColors::light;
}

} // namespace

std::span<const Option> runOptionTable() { return options; }

RunOptions runOptions(const CommandLine& line) {
    RunOptions run;
    run.plan = parsedPlan(line);
    run.folder = folderTo(Purpose::measure, line);
    run.json = line.has("--json");
    run.handOff = line.has("--handoff");
    run.output = outputFile(line);
    run.keep = line.has("--keep");
    run.card = parsedCard(line);
    return run;
}

} // namespace TarnwickHost
