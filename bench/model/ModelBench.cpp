// What the model costs: the history's file, and the progress events that the interface's thread takes in a
// run.

#include "TarnwickKit/model/SampleRun.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/ProgressStream.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <filesystem>

namespace {

using namespace TarnwickKit::model;
using OndelCore::benchmark::BenchmarkProgress;
using OndelCore::benchmark::BenchmarkTest;

QByteArray encodedHistory(const std::vector<RunRecord>& runs) {
    JsonWriter json;
    json.beginArray();
    for (const RunRecord& run : runs)
        json.raw(*encodeRun(run));
    json.endArray();
    return json.json();
}

std::vector<RunRecord> fiftyRuns() {
    std::vector<RunRecord> runs;
    for (int count = 0; count < 50; ++count)
        runs.push_back(fullRun());
    return runs;
}

void loadFiftyRuns(benchmark::State& state) {
    const QByteArray json = encodedHistory(fiftyRuns());
    for (auto _ : state)
        benchmark::DoNotOptimize(decodeRuns(json));
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * json.size());
}
BENCHMARK(loadFiftyRuns)->Unit(benchmark::kMillisecond);

void saveFiftyRuns(benchmark::State& state) {
    const std::vector<RunRecord> runs = fiftyRuns();
    for (auto _ : state)
        benchmark::DoNotOptimize(encodedHistory(runs));
}
BENCHMARK(saveFiftyRuns)->Unit(benchmark::kMillisecond);

const std::filesystem::path historyFolder = std::filesystem::temp_directory_path() / "ondel-model-bench";

/// One event, thinning included.
void applyProgress(benchmark::State& state) {
    AnalyzerServices services = AnalyzerServices::real();
    services.historyFolder = historyFolder;
    AnalyzerModel model(services);
    double elapsed = 0;
    for (auto _ : state) {
        elapsed += 0.02;
        model.apply({BenchmarkTest::sequentialWrite, 4096, 8192, 1e9, elapsed});
    }
}
BENCHMARK(applyProgress);

/// What the measuring worker pays for one event: the interface's thread does not get to take any.
void sendProgress(benchmark::State& state) {
    ProgressStream stream([](const ProgressStream::Batch&) {});
    const auto send = stream.sender();
    for (auto _ : state)
        send({BenchmarkTest::sequentialWrite, 4096, 8192, 1e9, 0.02});
}
BENCHMARK(sendProgress)->Iterations(1000000);

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::filesystem::remove_all(historyFolder);
}
