#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickKit/model/AnalyzerModel.h"
#include "examples/host/Command.h"
#include "examples/host/Output.h"
#include "examples/host/ProgressBar.h"
#include "examples/host/ResultJson.h"
#include "examples/host/ResultTable.h"
#include "examples/host/RunOptions.h"
#include "examples/host/RunWatch.h"
#include "examples/host/SweptFolder.h"

#include <QJsonDocument>

#include <optional>
#include <stop_token>
#include <string>

using namespace OndelCore::benchmark;
using TarnwickKit::model::AnalyzerModel;

namespace examples::host {

namespace {

/// Runs to the end what `options` ask for. Fails: as BenchmarkEngine::run.
BenchmarkResult measured(const RunOptions& options) {
    RunWatch watch;
    std::stop_source stop;
    std::optional<ProgressBar> bar;
    BenchmarkEngine::Progress progress;
    if (ProgressBar::isPossible()) {
        bar.emplace(options.plan);
        progress = [&bar](const BenchmarkProgress& latest) { bar->note(latest); };
    }

    // Not takeResult: in Qt 6.4 it returns the shared state to "unfinished" while the promise still lives.
    QFuture<BenchmarkResult> run =
        BenchmarkEngine()
            .run(options.plan, options.folder, progress, stop.get_token())
            .then([mark = watch.takeEndMark()](const QFuture<BenchmarkResult>& finished) mutable {
                mark.reset();
                return finished.result();
            });
    constexpr int frameMilliseconds = 100;
    for (;;) {
        switch (watch.wait(bar ? frameMilliseconds : -1)) {
        case RunWatch::Event::ended:
            return run.result();
        case RunWatch::Event::terminationRequested:
            stop.request_stop();
            [[fallthrough]];
        case RunWatch::Event::frameDue:
            if (bar)
                bar->draw(stop.stop_requested());
        }
    }
}

int execute(const CommandLine& line) {
    const RunOptions options = runOptions(line);
    requireStandardOutput();
    BenchmarkResult result;
    try {
        const SweptFolder swept(options.folder);
        result = measured(options);
    } catch (const Cancelled&) {
        return interrupted;
    } catch (const std::exception& error) {
        complain(AnalyzerModel::describe(error).toStdString());
        return failed;
    }
    print(options.json
              ? QJsonDocument(resultJson(options.plan, result)).toJson(QJsonDocument::Compact).toStdString() +
                    '\n'
              : resultTable(options.plan, result).toStdString());
    return done;
}

} // namespace

const Command runCommand{.name = "run",
                         .operands = "FOLDER",
                         .summary = "Measure the file system that holds FOLDER",
                         .options = runOptionTable(),
                         .notes = R"(
BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, GiB, TiB: steps of 1024). Blocks are rounded up to
whole pages of 4096. Every default is the one of the window, so that its figures and these can be compared.

Everything is written into a hidden folder inside FOLDER and removed at the end, also after Ctrl+C. What a killed
run left behind in FOLDER is removed before the start, unless another tarnwick-host measures there.

Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.
)",
                         .execute = &execute};

} // namespace examples::host
