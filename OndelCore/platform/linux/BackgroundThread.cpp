#include "OndelCore/platform/BackgroundThread.h"

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

namespace OndelCore::platform {

void enterBackground(const char* name) {
    constexpr int niceness = 10; // half way to the idlest
    pthread_setname_np(pthread_self(), name);
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), niceness); // on Linux of this one thread
}

} // namespace OndelCore::platform
