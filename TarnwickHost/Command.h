#pragma once

#include "TarnwickHost/CommandLine.h"

#include <span>
#include <string_view>

namespace TarnwickHost {

enum ExitStatus : int { done = 0, failed = 1, wrongUsage = 2, defectsFound = 3, interrupted = 130 };

/// A paragraph of a command's --help, or a line that explains a word.
struct Note {
    std::string_view term; ///< the word; empty for a paragraph
    const char* text;      ///< of the context "HostHelp"
};

/// One thing that the program can do: "tarnwick-host NAME …".
struct Command {
    std::string_view name;
    std::string_view operands; ///< as the usage line shows them: "FOLDER"
    const char* summary;       ///< for the list of commands, without a full stop; of the context "HostHelp"
    std::span<const Option> options;
    std::span<const Note> notes; ///< for the command's --help; may be empty

    /// Does it and answers the exit status.
    /// Fails: a UsageError becomes one line and `wrongUsage`, any other exception its text and `failed`.
    int (*execute)(const CommandLine& line);
};

extern const Command runCommand;
extern const Command checkCommand;
extern const Command showCommand;
extern const Command historyCommand;
extern const Command cardCommand;
extern const Command factsCommand;
extern const Command volumesCommand;
extern const Command smartReportCommand;

} // namespace TarnwickHost
