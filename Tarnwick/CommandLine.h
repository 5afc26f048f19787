#pragma once

#include <optional>
#include <string>
#include <vector>

/// What a start of the program was asked for.
struct CommandLine {
    std::vector<std::string> urls;
    std::string action; ///< as in OpenRequest

    /// Answers --help and --version, with the exit status. Absent: a window is wanted.
    static std::optional<int> answerWithoutWindow(int argc, char** argv);

    /// Converts folders, files and URLs. Names those that cannot be opened on standard error, unless that is
    /// logged, and keeps them. Fails: absent for an unknown option, with the usage on standard error. (Not
    /// QCommandLineParser, which loses bytes that are not valid UTF-8.)
    static std::optional<CommandLine> parse(int argc, char** argv);
};
