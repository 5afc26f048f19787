#include "TarnwickHost/HostProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

namespace fs = std::filesystem;

namespace test {

namespace {

void put(int descriptor, const fs::path& file) {
    const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    if (opened < 0 || dup2(opened, descriptor) < 0)
        _exit(125);
    close(opened);
}

void arrange(Output output, const fs::path& file) {
    switch (output) {
    case Output::file:
        return put(STDOUT_FILENO, file);
    case Output::fullDevice:
        return put(STDOUT_FILENO, "/dev/full");
    case Output::closed:
        close(STDOUT_FILENO);
        return;
    case Output::brokenPipe:
        int ends[2];
        if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
            _exit(125);
        close(ends[0]);
        close(ends[1]);
    }
}

} // namespace

HostProcess::HostProcess(const HostSetup& setup) {
    std::vector<char*> words{const_cast<char*>("tarnwick-host")};
    for (const std::string& argument : setup.arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);

    winsize size{};
    size.ws_col = static_cast<unsigned short>(setup.terminalColumns);
    size.ws_row = 24;
    m_process = setup.terminalColumns ? forkpty(&m_terminal, nullptr, nullptr, &size) : fork();
    if (m_process < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (m_process == 0) {
        // As a terminal starts it, whatever the tests' own parent ignores (nohup, a job in the background).
        for (const int number : {SIGHUP, SIGINT, SIGQUIT})
            std::signal(number, SIG_DFL);
        if (setup.ignoresInterrupt)
            std::signal(SIGINT, SIG_IGN);
        setenv("TERM", "xterm", 1);
        if (!setup.terminalColumns)
            put(STDERR_FILENO, m_files.path() / "errors");
        arrange(setup.output, m_files.path() / "output");
        if (setup.prepare)
            setup.prepare();
        execv(TARNWICK_HOST, words.data());
        _exit(126);
    }
}

HostProcess::~HostProcess() {
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    if (m_terminal >= 0)
        close(m_terminal);
}

void HostProcess::signal(int number) const { kill(m_process, number); }

bool HostProcess::readTerminal() {
    char bytes[4096];
    const ssize_t count = read(m_terminal, bytes, sizeof bytes);
    if (count <= 0) // EIO: the last one who had the terminal open is gone
        return false;
    m_shown.append(bytes, static_cast<std::size_t>(count));
    return true;
}

bool HostProcess::terminalShows(const std::string& text) {
    while (m_shown.find(text) == std::string::npos)
        if (!readTerminal())
            return false;
    return true;
}

HostOutcome HostProcess::wait() {
    while (m_terminal >= 0 && readTerminal()) {
    }
    int status = 0;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return {.exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            .output = contentOf(m_files.path() / "output"),
            .errors = m_terminal >= 0 ? m_shown : contentOf(m_files.path() / "errors")};
}

HostOutcome runHost(std::vector<std::string> arguments, Output output) {
    return HostProcess({.arguments = std::move(arguments), .output = output}).wait();
}

void waitForWorkingFolder(const fs::path& folder) {
    const auto isThere = [&] {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            if (entry.path().filename().string().starts_with(".ondel-analyzer-"))
                return true;
        return false;
    };
    while (!isThere())
        poll(nullptr, 0, 1);
}

} // namespace test
