#pragma once

#include <optional>
#include <string>
#include <vector>

/// What a start of the program was asked for.
struct CommandLine {
    std::vector<std::string> urls;

    /// Prints what was asked for without a window; the answer is then the process's status.
    static std::optional<int> answerWithoutWindow(int argc, char** argv);

    /// Folders, files and URLs; what opens nothing is said on standard error, unless that is logged, and
    /// kept. Fails: absent for an option that does not exist, with the usage on standard error.
    static std::optional<CommandLine> parse(int argc, char** argv);
};
