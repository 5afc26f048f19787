#include "TarnwickHost/Command.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/RunFiles.h"

#include <unistd.h>

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

int executeShow(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FILE to show is missing");
    const std::vector<RunRecord> runs = readRuns(line.operands());
    print(runTexts(runs, lineStyle(STDOUT_FILENO)).toStdString());
    return runs.size() == line.operands().size() ? done : failed;
}

} // namespace

const Command showCommand{.name = "show",
                          .operands = "FILE…",
                          .summary = "Show runs from their run files, and several side by side",
                          .options = {},
                          .notes = R"(
A run file is what "run --handoff" writes, for one run. With several, bars compare their figures: the largest of
each kind fills its track, and "--" stands where a run has none. Lines fit the terminal, or 80 columns.

A file that cannot be shown gets a line on standard error, and the others are shown.

Exit status: 0 all were shown, 1 not all, 2 wrong usage.
)",
                          .execute = &executeShow};

} // namespace TarnwickHost
