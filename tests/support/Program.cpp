#include "support/Program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace test {

Program::Program(const std::vector<std::string>& command) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return;
    std::vector<std::string> words = command;
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);

    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    if (posix_spawnp(&m_process, arguments[0], &actions, nullptr, arguments.data(), environ) != 0)
        m_process = -1;
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    m_output = ends[0];
}

Program::~Program() {
    if (m_process > 0) {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    close(m_output);
}

std::string Program::line() {
    std::string text;
    char next = 0;
    while (read(m_output, &next, 1) == 1 && next != '\n')
        text += next;
    return text;
}

bool Program::succeeds() {
    int status = -1;
    const bool hasEnded = m_process > 0 && waitpid(m_process, &status, 0) == m_process;
    m_process = -1;
    return hasEnded && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace test
