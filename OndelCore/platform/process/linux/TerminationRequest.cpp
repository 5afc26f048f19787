#include "OndelCore/platform/process/TerminationRequest.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <system_error>

namespace OndelCore::platform {

namespace {

volatile int requestEvent = -1;

void noteRequest(int) {
    const int saved = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = write(requestEvent, &one, sizeof one);
    errno = saved;
}

} // namespace

int terminationRequestDescriptor() {
    if (requestEvent >= 0)
        return requestEvent;
    requestEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (requestEvent < 0)
        throw std::system_error(errno, std::generic_category(), "eventfd");

    struct sigaction action{};
    action.sa_handler = noteRequest;
    action.sa_flags = SA_RESTART; // a measured transfer must not see EINTR
    sigemptyset(&action.sa_mask);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before{};
        sigaction(signal, nullptr, &before);
        if (before.sa_handler != SIG_IGN) // set on purpose by nohup and shells
            sigaction(signal, &action, nullptr);
    }
    return requestEvent;
}

} // namespace OndelCore::platform
