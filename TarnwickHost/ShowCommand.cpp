#include "TarnwickHost/Command.h"
#include "TarnwickHost/ExportOptions.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/RunFiles.h"

#include <array>

namespace TarnwickHost {

namespace {

constexpr std::array showOptions{formatOption};

int executeShow(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError(HostUsage::tr("a FILE to show is missing"));
    const auto form = exportForm(line);
    const auto [runs, isWhole] = readRuns(line.operands());
    if (!runs.empty() || isWhole)
        printRuns(runs, form);
    return isWhole ? done : failed;
}

constexpr std::array showNotes{
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp", "A run file is what \"run --handoff\" and \"run --output\" write, for one run. "
                             "The window's history (history.json) and\n"
                             "the output of \"show --format json\" have several. \"-\" is standard input.")},
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp",
                 "As text, bars compare the figures of several runs: the largest of each kind fills its "
                 "track, and \"--\" stands where a\n"
                 "run has none. Lines fit the terminal, or 80 columns. A Markdown table is for forums. CSV "
                 "has a line for each run, with\n"
                 "plain numbers for spreadsheets and scripts. JSON is a list of run files' contents.")},
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp",
                 "A file that cannot be shown gets a line on standard error, and the others are shown.")},
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "Exit status: 0 all were shown, 1 not all, 2 wrong usage.")},
};

} // namespace

const Command showCommand{
    .name = "show",
    .operands = "FILE…",
    .summary = QT_TRANSLATE_NOOP("HostHelp", "Show runs from their run files, and several side by side"),
    .options = showOptions,
    .notes = showNotes,
    .execute = &executeShow};

} // namespace TarnwickHost
