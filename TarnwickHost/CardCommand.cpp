#include "TarnwickHost/CardProgram.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/Output.h"

#include <array>

namespace TarnwickHost {

namespace {

constexpr std::array cardOptions{
    Option{"--dark", "", "Draw it in the dark colours"},
};

int executeCard(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a RUNFILE to draw is missing");
    std::vector<std::string> arguments;
    if (line.has("--dark"))
        arguments.emplace_back("--dark");
    arguments.emplace_back("--");
    arguments.insert(arguments.end(), line.operands().begin(), line.operands().end());
    const CardAnswer answer = drawCard(arguments);
    print(answer.output);
    return answer.status;
}

} // namespace

const Command cardCommand{.name = "card",
                          .operands = "RUNFILE…",
                          .summary = "Draw a picture of a run to share, or of several compared",
                          .options = cardOptions,
                          .notes = R"(
A run file is what "run --handoff" writes, for one run. The picture is a PNG file, 1616 pixels wide, with a
transparent margin; its path is printed. It needs no display. A picture of the same title replaces the one before;
it stays until your session ends, or until the system empties its temporary folder.

Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.
)",
                          .execute = &executeCard};

} // namespace TarnwickHost
