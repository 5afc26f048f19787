#include "TarnwickHost/Card.h"

#include "OndelCore/platform/storage/FileDescriptor.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <system_error>

using OndelCore::platform::FileDescriptor;
namespace fs = std::filesystem;

namespace TarnwickHost {

namespace {

void check(int error) {
    if (error != 0)
        throw std::system_error(error, std::generic_category(),
                                HostFiles::tr("%1, which comes with the window, could not be started")
                                    .arg(isolated("tarnwick-host-card"))
                                    .toStdString());
}

/// In a build folder it lies beside this program, installed in libexec. Fails: throws std::system_error if
/// the system does not tell where this program lies; no other place is trusted.
fs::path cardProgram() {
    std::error_code error;
    const fs::path own = fs::read_symlink("/proc/self/exe", error);
    if (error || !own.is_absolute())
        check(error ? error.value() : ENOENT);
    const fs::path built = own.parent_path() / "tarnwick-host-card";
    return fs::exists(built, error) ? built
                                    : own.parent_path().parent_path() / "libexec" / "tarnwick-host-card";
}

/// Starts a program with default signal settings and standard output into `pipe`. Fails: throws
/// std::system_error.
pid_t started(const std::vector<std::string>& words, const FileDescriptor& pipe) {
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (const std::string& word : words)
        argv.push_back(const_cast<char*>(word.c_str())); // the system only reads them
    argv.push_back(nullptr);

    posix_spawnattr_t attributes;
    posix_spawn_file_actions_t actions;
    check(posix_spawnattr_init(&attributes));
    check(posix_spawn_file_actions_init(&actions));
    sigset_t none;
    sigset_t broken;
    sigemptyset(&none);
    sigemptyset(&broken);
    sigaddset(&broken, SIGPIPE);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &broken);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawn_file_actions_adddup2(&actions, pipe.get(), STDOUT_FILENO);
    pid_t child = 0;
    const int error = posix_spawn(&child, argv.front(), &actions, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    check(error);
    return child;
}

std::string readToEnd(const FileDescriptor& pipe) {
    std::string all;
    std::array<char, 4096> buffer{};
    for (;;) {
        const ssize_t length = read(pipe.get(), buffer.data(), buffer.size());
        if (length > 0)
            all.append(buffer.data(), static_cast<std::size_t>(length));
        else if (length == 0 || errno != EINTR)
            return all;
    }
}

/// Fails: throws std::system_error.
CardAnswer answerTo(const std::vector<std::string>& arguments) {
    std::vector<std::string> words{cardProgram()};
    words.insert(words.end(), arguments.begin(), arguments.end());

    std::array<int, 2> ends{};
    check(pipe2(ends.data(), O_CLOEXEC) == 0 ? 0 : errno);
    const FileDescriptor ours(ends[0]);
    pid_t child = 0;
    {
        const FileDescriptor theirs(ends[1]);
        child = started(words, theirs);
    }
    CardAnswer answer{failed, readToEnd(ours)};
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR)
        continue;
    if (WIFEXITED(status))
        answer.status = WEXITSTATUS(status);
    return answer;
}

constexpr std::array cardOptions{
    Option{"--dark", "", QT_TRANSLATE_NOOP("HostHelp", "Draw it in the dark colours")},
};

int executeCard(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError(HostUsage::tr("a RUNFILE to draw is missing"));
    std::vector<std::string> arguments;
    if (line.has("--dark"))
        arguments.emplace_back("--dark");
    arguments.emplace_back("--");
    arguments.insert(arguments.end(), line.operands().begin(), line.operands().end());
    const CardAnswer answer = drawCard(arguments);
    print(answer.output);
    return answer.status;
}

constexpr std::array cardNotes{
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp",
                 "A run file is what \"run --handoff\" writes, for one run. The picture is a PNG file, 1616 "
                 "pixels wide, with a\n"
                 "transparent margin; its path is printed. It needs no display. A picture of the same title "
                 "replaces the one before;\n"
                 "it stays until your session ends, or until the system empties its temporary folder.")},
    Note{"",
         QT_TRANSLATE_NOOP(
             "HostHelp",
             "Exit status: 0 done, 1 a file could not be read or the picture not be made, 2 wrong usage.")},
};

} // namespace

CardAnswer drawCard(const std::vector<std::string>& arguments) {
    try {
        return answerTo(arguments);
    } catch (const std::system_error& error) {
        complain(std::string_view(error.what()));
        return {failed, {}};
    }
}

const Command cardCommand{
    .name = "card",
    .operands = "RUNFILE…",
    .summary = QT_TRANSLATE_NOOP("HostHelp", "Draw a picture of a run to share, or of several compared"),
    .options = cardOptions,
    .notes = cardNotes,
    .execute = &executeCard};

} // namespace TarnwickHost
