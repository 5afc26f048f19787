// What an image to share costs in a running process, for two curves of 600 points each: the drawing of the
// first card, which loads what cards are made of, and of later ones, which is what a window waits for; and
// the whole, with the encoding and the file. Then what ten more leave behind in memory. bench/fresh-card
// measures a process of its own. QT_QPA_PLATFORM=xcb and QSG_RHI_BACKEND=opengl choose the other renderer.

#include "TarnwickKit/views/sharing/CardView.h"
#include "TarnwickKit/views/sharing/ReportImage.h"
#include "TarnwickKit/views/sharing/ViewPicture.h"

#include <QQuickItem>

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <fstream>
#include <random>

using namespace TarnwickKit;
using namespace TarnwickKit::views;

namespace {

model::RunRecord record() {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> rate(0.8e9, 1.2e9);
    model::RunRecord run;
    run.volumeName = QStringLiteral("Backup");
    run.date = QDateTime::fromSecsSinceEpoch(1'780'000'000);
    run.duration = 63;
    run.writeBps = run.readBps = 1e9;
    run.randomReadIOPS = run.randomWriteIOPS = run.fileOpsPerSec = 12345;
    run.fsType = QStringLiteral("ext4");
    run.capacityBytes = run.freeBytes = std::int64_t{1} << 40;
    run.writeBlock = run.readBlock = 1 << 20;
    for (int i = 0; i < 600; ++i) {
        run.writeSamples.push_back({i * 0.02, rate(random)});
        run.readSamples.push_back({i * 0.02, rate(random)});
    }
    return run;
}

/// Bytes of this process in memory.
double residentBytes() {
    std::ifstream statm("/proc/self/statm");
    double all = 0;
    double resident = 0;
    statm >> all >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

std::unique_ptr<QQuickItem> card(const model::RunRecord& run) {
    return newCard(
        QStringLiteral("ReportCard"),
        {{QStringLiteral("run"), QVariant::fromValue(run)}, {QStringLiteral("link"), productLink()}},
        Palette::light());
}

void drawing(benchmark::State& state) {
    const auto run = record();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(viewPicture(*card(run), ReportImage::scale).constBits());
}
BENCHMARK(drawing)->Name("firstDrawing")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(drawing)->Unit(benchmark::kMillisecond);

void wholeImage(benchmark::State& state) {
    const auto run = record();
    for ([[maybe_unused]] auto _ : state)
        if (!ReportImage::render(run, Palette::light()))
            state.SkipWithError("no image");
}
BENCHMARK(wholeImage)->Unit(benchmark::kMillisecond);

void wholeComparison(benchmark::State& state) {
    const std::vector<model::RunRecord> runs(8, record());
    for ([[maybe_unused]] auto _ : state)
        if (!ComparisonImage::render(runs, Palette::light()))
            state.SkipWithError("no image");
}
BENCHMARK(wholeComparison)->Unit(benchmark::kMillisecond);

void memoryOfTen(benchmark::State& state) {
    const auto run = record();
    const double before = residentBytes();
    for ([[maybe_unused]] auto _ : state)
        for (int i = 0; i < 10; ++i)
            ReportImage::render(run, i % 2 == 0 ? Palette::light() : Palette::dark());
    state.counters["grown_MB"] = (residentBytes() - before) / 1e6;
}
BENCHMARK(memoryOfTen)->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
