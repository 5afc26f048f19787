#pragma once

#include "support/TemporaryFolder.h"

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace test {

/// Where a started program's standard output goes.
enum class Output { file, closed, fullDevice, brokenPipe };

struct HostSetup {
    std::vector<std::string> arguments;
    Output output = Output::file;
    bool ignoresInterrupt = false;      ///< as a shell script starts its background jobs
    std::function<void()> prepare = {}; ///< in the new process, before the program
    int terminalColumns = 0;            ///< above 0: standard error is a terminal of that width
};

struct HostOutcome {
    int exitStatus = -1; ///< -1 when a signal ended it
    std::string output;
    std::string errors;
};

/// One start of the real program, as a shell would do it. Owner: a program still running is killed and
/// reaped.
class HostProcess {
public:
    explicit HostProcess(const HostSetup& setup);
    ~HostProcess();
    HostProcess(const HostProcess&) = delete;
    HostProcess& operator=(const HostProcess&) = delete;

    void signal(int number) const;
    /// Reads the terminal until `text` was written to it. Fails: false when the program ends before.
    bool terminalShows(const std::string& text);
    HostOutcome wait();

private:
    bool readTerminal();

    TemporaryFolder m_files;
    pid_t m_process = -1;
    int m_terminal = -1;
    std::string m_shown;
};

/// Starts the program with `arguments` and waits for its end.
HostOutcome runHost(std::vector<std::string> arguments, Output output = Output::file);

/// Waits until a run has made its working folder in `folder`.
void waitForWorkingFolder(const std::filesystem::path& folder);

} // namespace test
