// tarnwick-host: a host application on the library's public surface, for terminals and scripts.

#include "TarnwickHost/Command.h"
#include "TarnwickHost/Help.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/language/Language.h"

#include <QByteArray>
#include <QCoreApplication>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <clocale>
#include <csignal>
#include <exception>
#include <optional>
#include <string>
#include <vector>

using namespace TarnwickHost;

namespace {

constexpr std::string_view program = "tarnwick-host";

/// In the order in which --help lists them.
constexpr std::array commands{&runCommand,  &checkCommand, &showCommand,    &historyCommand,
                              &cardCommand, &factsCommand, &volumesCommand, &smartReportCommand};

/// Whether the user's locale has this encoding by its name.
bool isNamedUtf8() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const QByteArray locale = qgetenv(variable).toLower(); !locale.isEmpty())
            return locale.contains(".utf-8") || locale.contains(".utf8");
    return false;
}

/// The character encoding only: numbers and dates look up the locale themselves, and what the system says of
/// errors stays as scripts and JSON have it. That of a locale that is not installed, as after a login from
/// another machine, is in its name.
void takeEncoding() {
    // NOLINTBEGIN(concurrency-mt-unsafe): no other thread runs yet.
    std::setlocale(LC_ALL, "C");
    if (std::setlocale(LC_CTYPE, "") == nullptr && isNamedUtf8())
        std::setlocale(LC_CTYPE, "C.UTF-8");
    // NOLINTEND(concurrency-mt-unsafe)
}

int execute(const Command& command, std::span<const char* const> words) {
    try {
        const CommandLine line(command.options, words);
        if (line.wantsHelp()) {
            print(helpOf(command, lineStyle(STDOUT_FILENO).columns).toStdString());
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
        print(helpOfProgram(commands, lineStyle(STDOUT_FILENO).columns).toStdString());
        return done;
    }
    if (first == "--version") {
        print(std::string(program) + " " ONDEL_VERSION "\n");
        return done;
    }
    for (const Command* command : commands)
        if (first == command->name)
            return execute(*command, words.subspan(1));
    const QString help = isolated(std::string(program) + " --help");
    const QString why = words.empty()
                            ? HostUsage::tr("a command is missing; see %1").arg(help)
                            : HostUsage::tr("there is no command %1; see %2").arg(inQuotes(first), help);
    complain(std::string(program) + ": " + why.toStdString());
    return wrongUsage;
}

} // namespace

int main(int argc, char** argv) {
    occupyStandardDescriptors();
    std::signal(SIGPIPE, SIG_IGN);
    takeEncoding();
    const std::vector<const char*> words(argv + std::min(1, argc), argv + argc); // Qt takes some of them away
    // Without it texts are English, which a terminal of another encoding than UTF-8 needs. Qt would also
    // print a warning there.
    std::optional<QCoreApplication> application;
    if (lineStyle(STDOUT_FILENO).unicode) {
        application.emplace(argc, argv);
        takeEncoding(); // Qt takes over all of the locale
        TarnwickKit::model::Language::install();
    }
    try {
        return dispatch(words);
    } catch (const std::exception& error) {
        complain(std::string_view(error.what()));
        return failed;
    }
}
