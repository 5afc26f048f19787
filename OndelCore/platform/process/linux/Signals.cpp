#include "OndelCore/platform/process/Signals.h"

#include <pthread.h>

#include <csignal>
#include <initializer_list>

namespace OndelCore::platform {

void keepSignalsOffThisThread() {
    sigset_t held;
    sigfillset(&held);
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGTRAP, SIGABRT, SIGSYS, SIGPROF})
        sigdelset(&held, fault);
    pthread_sigmask(SIG_BLOCK, &held, nullptr);
}

void surviveFileSizeLimit() { std::signal(SIGXFSZ, SIG_IGN); }

} // namespace OndelCore::platform
