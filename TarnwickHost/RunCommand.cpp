#include "OndelCore/benchmark/BenchmarkEngine.h"
#include "OndelCore/benchmark/BenchmarkError.h"
#include "TarnwickHost/Card.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Place.h"
#include "TarnwickHost/Progress.h"
#include "TarnwickHost/Results.h"
#include "TarnwickHost/RunEventLoop.h"
#include "TarnwickHost/RunOptions.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/TarnwickReport.h"
#include "TarnwickKit/model/session/AnalyzerModel.h"

#include <QDateTime>
#include <QJsonDocument>

#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

using namespace OndelCore::benchmark;
using TarnwickKit::model::AnalyzerModel;
using TarnwickKit::model::HistoryStore;
using TarnwickKit::model::RunRecord;
using TarnwickKit::model::TarnwickReport;

namespace TarnwickHost {

namespace {

/// Prints a line for each failed flush to the medium, which the figures do not show.
void complainOfFlushes(const RunOptions& options, const BenchmarkResult& result) {
    const std::int64_t block = BenchmarkPlan::alignedBlock(options.plan.randomBlockSize);
    for (const FlushFailure& failure : result.flushFailures()) {
        const QString reason = QString::fromStdString(failure.error.message());
        if (failure.test)
            //: %1: a test, %2: what the system says.
            complain(HostFiles::tr("%1: the flush to the medium failed (%2); not all that was written may be "
                                   "there.")
                         .arg(TarnwickKit::model::title(*failure.test, block), reason));
        else
            //: The preparation of the test file. %1: what the system says.
            complain(HostFiles::tr("Preparation: the flush to the medium failed (%1); not all that was "
                                   "written may be there.")
                         .arg(reason));
    }
}

/// Runs the benchmark to its end. Fails: as BenchmarkEngine::run.
BenchmarkResult measured(const RunOptions& options) {
    RunEventLoop watch;
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
        case RunEventLoop::Event::ended:
            return run.result();
        case RunEventLoop::Event::terminationRequested:
            stop.request_stop();
            [[fallthrough]];
        case RunEventLoop::Event::frameDue:
            if (bar)
                bar->draw(stop.stop_requested());
        }
    }
}

/// Where a run's files lie.
struct Files {
    std::optional<std::filesystem::path> run;
    std::optional<std::filesystem::path> card;
    bool isWhole = true; ///< all that was asked for is written
};

/// Writes the temporary files that `options` ask for. One that cannot be written is absent, with a line on
/// standard error.
Files temporaryFiles(const RunOptions& options, const RunRecord& record) {
    if (!options.handOff && !options.card)
        return {};
    Files files{.run = TarnwickReport{record}.handoffFile(), .card = std::nullopt};
    if (!files.run) {
        complain(HostFiles::tr("The run file could not be written to your temporary folder."));
        files.isWhole = false;
        return files;
    }
    if (options.card) {
        std::vector<std::string> arguments{"--", *files.run};
        if (options.card == CardColors::dark)
            arguments.insert(arguments.begin(), "--dark");
        const CardAnswer answer = drawCard(arguments);
        if (answer.status == done)
            files.card = answer.output.substr(0, answer.output.find('\n'));
        files.isWhole = files.card.has_value();
    }
    if (!options.handOff) {
        std::error_code ignored;
        std::filesystem::remove(*files.run, ignored);
        files.run.reset();
    }
    return files;
}

/// Writes the run wherever `options` ask for it.
Files written(const RunOptions& options, const RunRecord& record) {
    Files files = temporaryFiles(options, record);
    if (options.output)
        files.isWhole &= options.output->write(encodeRun(record));
    if (options.keep) {
        HistoryStore history;
        history.add(record);
        if (!history.isSaved()) {
            complain(HostFiles::tr("The run could not be added to the history."));
            files.isWhole = false;
        }
    }
    return files;
}

QJsonDocument json(const MeasuredRun& run, const Files& files) {
    QJsonObject object = resultJson(run);
    const auto insert = [&](const char* key, const std::optional<std::filesystem::path>& file) {
        if (file)
            object.insert(QLatin1String(key), QString::fromStdString(file->string()));
    };
    insert("handoffFile", files.run);
    insert("cardFile", files.card);
    return QJsonDocument(object);
}

std::string text(const MeasuredRun& run, const Files& files) {
    std::string lines = resultTable(run, lineStyle(STDOUT_FILENO).columns).toStdString();
    if (files.run || files.card)
        lines += '\n';
    for (const auto& file : {files.run, files.card})
        if (file)
            lines += file->string() + '\n';
    return lines;
}

/// Records hold no negative sizes of blocks; the engine makes a page of them.
BenchmarkPlan recordable(BenchmarkPlan plan) {
    for (std::int64_t* block : {&plan.writeBlockSize, &plan.readBlockSize, &plan.randomBlockSize})
        *block = *block < 0 ? BenchmarkPlan::alignedBlock(*block) : *block;
    return plan;
}

int executeRun(const CommandLine& line) {
    const RunOptions options = runOptions(line);
    requireStandardOutput();
    BenchmarkResult result;
    RunPlace place;
    QDateTime date;
    try {
        sweep(options.folder);
        place = placeOf(options.folder);
        date = QDateTime::currentDateTimeUtc();
        result = measured(options);
    } catch (const Cancelled&) {
        return interrupted;
    } catch (const std::exception& error) {
        complain(AnalyzerModel::describe(error).toStdString());
        return failed;
    }
    complainOfFlushes(options, result);
    const RunRecord record =
        TarnwickReport::from(result, place.volume, place.capabilities, date, recordable(options.plan)).run;
    const Files files = written(options, record);
    const MeasuredRun run{options.plan,
                          result,
                          record.remarks.value_or(std::vector<Remark>()),
                          {record.deviceModel, record.deviceProtocol},
                          place,
                          record};
    if (options.json)
        print(json(run, files));
    else
        print(text(run, files));
    return files.isWhole ? done : failed;
}

constexpr std::array runNotes{
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "BYTES are plain digits, or digits with K, M, G, T (KiB, MiB, "
                                           "GiB, TiB: steps of 1024). Blocks are rounded up to\n"
                                           "whole pages of 4096. Defaults are those of the window, so that "
                                           "its figures and these can be compared, but for the\n"
                                           "blocks of the sequential tests: the window takes the \"Optimal "
                                           "transfer\" that \"facts\" shows.")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "Everything is written into a hidden folder inside FOLDER and "
                                           "removed at the end, also after Ctrl+C. What a killed\n"
                                           "run left behind in FOLDER is removed before the start; files "
                                           "that are still in use stay, after a second's wait.")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "The files of --handoff and --card stay until your session ends, "
                                           "or until the system empties its temporary folder.\n"
                                           "--output replaces an existing file only if it is empty or holds "
                                           "runs (a run file, or what \"show --format\" and\n"
                                           "\"history export\" write as json or csv); with --force any other "
                                           "file too. A window that is open shows a run that\n"
                                           "--keep adds as soon as you come back to it. When something "
                                           "cannot be written, the figures are printed all the same\n"
                                           "and the run counts as failed.")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp",
                               "Exit status: 0 done, 1 failed, 2 wrong usage, 130 stopped by a signal.")},
};

} // namespace

const Command runCommand{.name = "run",
                         .operands = "FOLDER",
                         .summary =
                             QT_TRANSLATE_NOOP("HostHelp", "Measure the file system that holds FOLDER"),
                         .options = runOptionTable(),
                         .notes = runNotes,
                         .execute = &executeRun};

} // namespace TarnwickHost
