// What an image to share costs in a running process: drawing the card, encoding and writing it, and both, for
// two curves of 600 points each. The first card of a process, which loads what cards are made of, is not
// counted here; bench/cards/fresh measures that. QT_QPA_PLATFORM and QSG_RHI_BACKEND choose the renderer.

#include "TarnwickKit/views/CardView.h"
#include "TarnwickKit/views/ReportImage.h"
#include "TarnwickKit/views/TarnwickFonts.h"
#include "TarnwickKit/views/ViewPicture.h"

#include <QGuiApplication>
#include <QQuickItem>

#include <benchmark/benchmark.h>

#include <cstdlib>
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
BENCHMARK(drawing)->Unit(benchmark::kMillisecond);

void wholeImage(benchmark::State& state) {
    const auto run = record();
    for ([[maybe_unused]] auto _ : state)
        if (!ReportImage::render(run, Palette::light()))
            state.SkipWithError("no image");
}
BENCHMARK(wholeImage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QGuiApplication application(argc, argv);
    TarnwickFonts::registerFrom();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv) ||
        !ReportImage::render(record(), Palette::light()))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
