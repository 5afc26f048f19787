#include "TarnwickHost/RunEventLoop.h"

#include "OndelCore/platform/process/TerminationRequest.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

using OndelCore::platform::FileDescriptor;

namespace TarnwickHost {

RunEventLoop::RunEventLoop() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "pipe");
    m_endReader = FileDescriptor(ends[0]);
    m_endWriter = FileDescriptor(ends[1]);

    for (std::size_t index = 0; index < handledSignals.size(); ++index)
        sigaction(handledSignals.at(index), nullptr, &m_previousActions.at(index));
    // A shell script starts background jobs with SIGINT ignored. An explicit SIGINT must still stop the run.
    std::signal(SIGINT, SIG_DFL);
    // Ctrl+\ would leave the files behind; Ctrl+C ends the run.
    std::signal(SIGQUIT, SIG_IGN);
    m_termination = OndelCore::platform::terminationRequestDescriptor();
}

RunEventLoop::~RunEventLoop() {
    for (std::size_t index = 0; index < handledSignals.size(); ++index)
        sigaction(handledSignals.at(index), &m_previousActions.at(index), nullptr);
}

RunEventLoop::EndMark RunEventLoop::takeEndMark() {
    // Closing the only writing end is what the reading end notices.
    return std::make_shared<FileDescriptor>(std::move(m_endWriter));
}

RunEventLoop::Event RunEventLoop::wait(int frameMilliseconds) {
    // poll(2) passes over a negative descriptor.
    std::array<pollfd, 2> watched{pollfd{.fd = m_endReader.get(), .events = POLLIN, .revents = 0},
                                  pollfd{.fd = m_termination, .events = POLLIN, .revents = 0}};
    int ready = 0;
    do
        ready = poll(watched.data(), watched.size(), frameMilliseconds);
    while (ready < 0 && errno == EINTR);
    if (ready < 0)
        std::abort();
    if (watched[0].revents)
        return Event::ended;
    if (!watched[1].revents)
        return Event::frameDue;
    m_termination = -1;
    return Event::terminationRequested;
}

} // namespace TarnwickHost
