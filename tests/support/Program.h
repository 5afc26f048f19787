#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace test {

/// A program that runs beside the test. Started by posix_spawn(3): what QProcess does between vfork(2) and
/// the program, in memory that both share, makes the thread sanitizer see races that are none.
class Program {
public:
    /// `command`: the name, looked for in PATH, and the arguments.
    explicit Program(const std::vector<std::string>& command);
    /// Kills it if it still runs.
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The next line that it prints or complains of, without its end. Empty at the end of all.
    std::string line();
    /// Waits for its end. Returns whether it ended with status 0.
    bool succeeds();

private:
    pid_t m_process = -1;
    int m_output = -1;
};

} // namespace test
