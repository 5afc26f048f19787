#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecordJson.h"
#include "examples/host/Command.h"
#include "examples/host/Output.h"
#include "examples/host/RunText.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

using namespace TarnwickKit::model;

namespace examples::host {

namespace {

/// Why readRunFile gave nothing for `path`, to stand behind its name.
std::string whyUnread(const std::string& path) {
    struct stat facts {};
    if (stat(path.c_str(), &facts) != 0)
        return ": " + std::generic_category().message(errno);
    if (!S_ISREG(facts.st_mode))
        return " is not a regular file";
    if (static_cast<std::uintmax_t>(facts.st_size) > maxRunFileBytes)
        return " is larger than a run file can be (" + std::to_string(maxRunFileBytes >> 20) + " MiB)";
    if (access(path.c_str(), R_OK) != 0)
        return ": " + std::generic_category().message(errno);
    return " could not be read";
}

int execute(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FILE to show is missing");
    std::vector<RunRecord> runs;
    for (const std::string_view operand : line.operands()) {
        const std::string path(operand);
        const auto content = readRunFile(path);
        const auto run = content ? decodeRun(*content) : std::nullopt;
        if (run)
            runs.push_back(*run);
        else
            complain(quoted(operand) + (content ? " is not a run file" : whyUnread(path)));
    }
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
                          .execute = &execute};

} // namespace examples::host
