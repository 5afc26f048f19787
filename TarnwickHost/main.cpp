// tarnwick-host: a host application on the library's public surface, for terminals and scripts.

#include "TarnwickHost/Command.h"
#include "TarnwickHost/Output.h"
#include "TarnwickKit/model/format/DisplayText.h"

#include <algorithm>
#include <array>
#include <clocale>
#include <csignal>
#include <exception>
#include <string>

using namespace TarnwickHost;
using TarnwickKit::model::columnsOf;

namespace {

constexpr std::string_view program = "tarnwick-host";

/// In the order in which --help lists them.
constexpr std::array commands{&runCommand,  &checkCommand, &showCommand,    &historyCommand,
                              &cardCommand, &factsCommand, &volumesCommand, &smartReportCommand};

/// Two columns: the words on the left, what they mean on the right.
class HelpLines {
public:
    explicit HelpLines(int leftColumns)
        : m_leftColumns(leftColumns) {}

    void add(std::string_view left, std::string_view right) {
        std::string line = "  " + std::string(left);
        // An ellipsis is three bytes, and one column.
        line.append(spaces(m_leftColumns + 2 - std::min(m_leftColumns, columnsOf(QString::fromUtf8(left)))));
        for (std::size_t start = 0; start <= right.size();) {
            const std::size_t end = std::min(right.find('\n', start), right.size());
            m_text.append(line).append(right.substr(start, end - start)).append("\n");
            line = spaces(m_leftColumns + 4);
            start = end + 1;
        }
    }
    const std::string& text() const { return m_text; }

private:
    static std::string spaces(int count) { return std::string(static_cast<std::size_t>(count), ' '); }

    int m_leftColumns;
    std::string m_text;
};

std::string helpOf(const Command& command) {
    std::string usage = "Usage: " + std::string(program) + " " + std::string(command.name) + " [OPTION]…" +
                        (command.operands.empty() ? "" : " ") + std::string(command.operands) + "\n";
    HelpLines lines(24);
    for (const Option& option : command.options)
        lines.add(std::string(option.name) + (option.argument.empty() ? "" : " ") +
                      std::string(option.argument),
                  option.help);
    lines.add("--help", "Show this text");
    return usage + std::string(command.summary) + ".\n\n" + lines.text() + std::string(command.notes);
}

std::string helpOfProgram() {
    HelpLines lines(24);
    for (const Command* command : commands)
        lines.add(std::string(command->name) + " " + std::string(command->operands), command->summary);
    lines.add("--help", "Show this text, or behind a command that command's options");
    lines.add("--version", "Show the version");
    return "Usage: " + std::string(program) + " COMMAND [OPTION]… [OPERAND]…\n" +
           "Ondel Tarnwick in a terminal: how fast a disk is, measured on it and removed again.\n\n" +
           lines.text();
}

int execute(const Command& command, std::span<const char* const> words) {
    try {
        const CommandLine line(command.options, words);
        if (line.wantsHelp()) {
            print(helpOf(command));
            return done;
        }
        return command.execute(line);
    } catch (const UsageError& error) {
        complain(std::string(program) + " " + std::string(command.name) + ": " + error.what());
        return wrongUsage;
    }
}

int dispatch(std::span<const char* const> words) {
    const std::string_view first = words.empty() ? std::string_view() : words.front();
    if (first == "--help" || first == "-h") {
        print(helpOfProgram());
        return done;
    }
    if (first == "--version") {
        print(std::string(program) + " " ONDEL_VERSION "\n");
        return done;
    }
    for (const Command* command : commands)
        if (first == command->name)
            return execute(*command, words.subspan(1));
    const std::string hint = "; see " + std::string(program) + " --help";
    complain(std::string(program) + ": " +
             (words.empty() ? "a command is missing" : "there is no command " + quoted(first)) + hint);
    return wrongUsage;
}

} // namespace

int main(int argc, char** argv) {
    occupyStandardDescriptors();
    std::signal(SIGPIPE, SIG_IGN);
    // The character encoding only: numbers and dates look up the locale themselves.
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread runs yet.
    std::setlocale(LC_CTYPE, "");
    try {
        const std::span<const char* const> words(argv, static_cast<std::size_t>(argc));
        return dispatch(words.subspan(std::min<std::size_t>(1, words.size())));
    } catch (const std::exception& error) {
        complain(error.what());
        return failed;
    }
}
