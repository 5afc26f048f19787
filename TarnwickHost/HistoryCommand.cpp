#include "TarnwickHost/Command.h"
#include "TarnwickHost/ExportOptions.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/runs/Comparison.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <set>
#include <stdexcept>

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

struct HostHistory {
    Q_DECLARE_TR_FUNCTIONS(HostHistory)
};

constexpr std::array historyOptions{
    formatOption,
    Option{"--output", "FILE", QT_TRANSLATE_NOOP("HostHelp", "The file that \"export\" writes")},
    forceOption,
    Option{"--all", "", QT_TRANSLATE_NOOP("HostHelp", "Let \"delete\" delete all runs")},
};

using Runs = std::vector<RunRecord>;
using Words = std::span<const std::string_view>;

constexpr qsizetype shortestName = 8;
constexpr qsizetype leastPrefix = 4;

QString idOf(const RunRecord& run) { return run.id.toString(QUuid::WithoutBraces).toUpper(); }

/// The beginnings of the runs' ids that tell them apart, all of one length.
QStringList namesOf(const Runs& runs) {
    for (qsizetype length = shortestName;; ++length) {
        QStringList names;
        for (const RunRecord& run : runs)
            names << idOf(run).left(length);
        if (std::set(names.begin(), names.end()).size() == runs.size() || length >= idOf({}).size())
            return names;
    }
}

/// The runs whose ids begin with `words`, each once. Fails: throws std::runtime_error for a word that stands
/// for no run or for several.
Runs named(const Runs& runs, Words words) {
    Runs chosen;
    for (const std::string_view word : words) {
        const QString beginning = QString::fromUtf8(word).toUpper();
        const auto isMeant = [&](const RunRecord& run) {
            return beginning.size() >= leastPrefix && idOf(run).startsWith(beginning);
        };
        const auto found = std::ranges::find_if(runs, isMeant);
        if (found == runs.end())
            throw std::runtime_error(
                HostHistory::tr("there is no run %1 in the history").arg(inQuotes(word)).toStdString());
        if (std::ranges::count_if(runs, isMeant) > 1)
            throw std::runtime_error(
                HostHistory::tr("%1 stands for several runs").arg(inQuotes(word)).toStdString());
        if (std::ranges::find(chosen, found->id, &RunRecord::id) == chosen.end())
            chosen.push_back(*found);
    }
    return chosen;
}

Runs namedOrAll(const Runs& runs, Words words) { return words.empty() ? runs : named(runs, words); }

void list(const Runs& runs) {
    constexpr int titleColumns = 28;
    if (runs.empty())
        return;
    //: A benchmark run.
    TextRow header{HostHistory::tr("Run"), HostHistory::tr("Date"), HostHistory::tr("Title")};
    for (const CompareMetric& metric : CompareMetric::all())
        header.push_back(labelOf(metric.test));
    std::vector<TextRow> rows{header};
    const QStringList names = namesOf(runs);
    for (std::size_t index = 0; index < runs.size(); ++index) {
        const RunRecord& run = runs[index];
        TextRow row{names[static_cast<qsizetype>(index)], Formatter::user().dateAndTime(run.date),
                    fitted(run.title(), titleColumns)};
        for (const CompareMetric& metric : CompareMetric::all()) {
            const auto figure = run.*metric.magnitude;
            const bool isOfFiles = metric.test == OndelCore::benchmark::BenchmarkTest::fileOps;
            const QString unit = isOfFiles ? operationsPerSecond() : metric.unit;
            row.push_back(figure ? metric.format(*figure) + ' ' + unit : QString("--"));
        }
        rows.push_back(row);
    }
    print(textColumns(rows).toStdString());
}

/// The form that the ending of a file's name asks for.
std::optional<ExportForm> formByName(const std::filesystem::path& file) {
    const std::string ending = file.extension();
    if (ending == ".csv")
        return ExportForm::csv;
    if (ending == ".json")
        return ExportForm::json;
    if (ending == ".md")
        return ExportForm::markdown;
    return ending == ".txt" ? std::optional(ExportForm::text) : std::nullopt;
}

int exportRuns(const CommandLine& line, const Runs& runs) {
    const auto file = outputFile(line);
    if (!file)
        throw UsageError(HostUsage::tr("%1 needs %2").arg(isolated("export"), isolated("--output FILE")));
    const std::filesystem::path name = *line.value("--output");
    const auto asked = exportForm(line);
    if (!asked && name.extension() == "." + std::string(TarnwickFile::runExtension)) {
        if (runs.size() != 1)
            throw UsageError(HostUsage::tr("a run file holds one run, not %1").arg(runs.size()));
        return file->write(encodeRun(runs.front())) ? done : failed;
    }
    const auto form = asked ? asked : formByName(name);
    if (!form)
        throw UsageError(
            HostUsage::tr("%1 is needed where the FILE's name does not end in .tarnwickrun, .csv, "
                          ".json, .md or .txt")
                .arg(isolated("--format")));
    return file->write(exported(runs, *form)) ? done : failed;
}

int deleteRuns(const CommandLine& line, HistoryStore& history, Words words) {
    if (words.empty() != line.has("--all"))
        throw UsageError(
            HostUsage::tr("%1 needs either RUNs or %2").arg(isolated("delete"), isolated("--all")));
    for (const RunRecord& run : namedOrAll(history.runs(), words))
        history.deleteRun(run.id);
    if (history.isSaved())
        return done;
    complain(HostFiles::tr("The history could not be written."));
    return failed;
}

/// Fails: throws UsageError for an option of another action.
void requireOwnOptions(const CommandLine& line, std::string_view action) {
    const auto requireFor = [&](std::string_view option, std::string_view one, std::string_view other) {
        if (line.has(option) && action != one && action != other)
            throw other.empty() ? goesOnlyWith(option, one)
                                : UsageError(HostUsage::tr("%1 goes with %2 and %3 only")
                                                 .arg(isolated(option), isolated(one), isolated(other)));
    };
    requireFor("--format", "show", "export");
    requireFor("--output", "export", {});
    requireFor("--force", "export", {});
    requireFor("--all", "delete", {});
}

int executeHistory(const CommandLine& line) {
    Words words = line.operands();
    const std::string_view action = words.empty() ? "list" : words.front();
    words = words.subspan(words.empty() ? 0 : 1);
    constexpr std::array<std::string_view, 4> actions{"list", "show", "export", "delete"};
    if (std::ranges::find(actions, action) == actions.end())
        throw UsageError(HostUsage::tr("%1 can list, show, export and delete, not %2")
                             .arg(isolated("history"), inQuotes(action)));
    requireOwnOptions(line, action);
    const auto form = exportForm(line);
    HistoryStore history;
    if (action == "delete")
        return deleteRuns(line, history, words);
    const Runs runs = namedOrAll(history.runs(), words);
    if (action == "export")
        return exportRuns(line, runs);
    if (action == "show")
        printRuns(runs, form);
    else
        list(runs);
    return done;
}

constexpr std::array historyNotes{
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "ACTION is one of")},
    Note{"list", QT_TRANSLATE_NOOP(
                     "HostHelp", "a line for each run, newest first, which begins with its name (default)")},
    Note{"show", QT_TRANSLATE_NOOP("HostHelp", "print runs as \"show\" does, in the form of --format")},
    Note{"export", QT_TRANSLATE_NOOP("HostHelp", "write runs to the FILE of --output, in the form of "
                                                 "--format or of the FILE's name: .csv, .json, .md,\n"
                                                 ".txt, or .tarnwickrun for one run")},
    Note{"delete", QT_TRANSLATE_NOOP("HostHelp", "delete runs, without a question and for good")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp",
                               "A RUN is named as the list has it, or by four or more characters that begin "
                               "its id. Without one, all runs are meant;\n"
                               "\"delete\" then needs --all. A window that is open follows as soon as you "
                               "come back to it. --output replaces an existing\n"
                               "file only if it is empty or holds runs; with --force any other file too.")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp",
                               "Exit status: 0 done, 1 there is no such run or it failed, 2 wrong usage.")},
};

} // namespace

const Command historyCommand{
    .name = "history",
    .operands = "[ACTION] [RUN]…",
    .summary = QT_TRANSLATE_NOOP("HostHelp", "List, show, export or delete the runs that the window keeps"),
    .options = historyOptions,
    .notes = historyNotes,
    .execute = &executeHistory};

} // namespace TarnwickHost
