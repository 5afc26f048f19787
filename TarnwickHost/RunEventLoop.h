#pragma once

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <array>
#include <csignal>
#include <memory>

namespace TarnwickHost {

/// Waits for the end of a run, a request to end the program, or the time of the next frame.
/// While the object lives, signals from a terminal or a script do not end the process, however many come, so
/// that the run's files are removed first. The destructor restores the previous signal actions.
/// Threads: the main one, one object at a time.
class RunEventLoop {
public:
    enum class Event { ended, terminationRequested, frameDue };

    /// Fails: throws std::system_error.
    RunEventLoop();
    ~RunEventLoop();
    RunEventLoop(const RunEventLoop&) = delete;
    RunEventLoop& operator=(const RunEventLoop&) = delete;

    /// The run has ended when the last copy of this is gone. It may go on any thread.
    using EndMark = std::shared_ptr<void>;
    /// To be called once.
    EndMark takeEndMark();

    /// Waits for the next event. `frameMilliseconds`: -1 for no frames. A request to end is told once.
    Event wait(int frameMilliseconds);

private:
    static constexpr std::array handledSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT};

    std::array<struct sigaction, handledSignals.size()> m_previousActions{};
    int m_termination = -1;
    OndelCore::platform::FileDescriptor m_endReader;
    OndelCore::platform::FileDescriptor m_endWriter;
};

} // namespace TarnwickHost
