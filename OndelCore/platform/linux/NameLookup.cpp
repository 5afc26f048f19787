#include "OndelCore/platform/NameLookup.h"

#include <netdb.h>
#include <pthread.h>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

namespace OndelCore::platform {

namespace {

/// Shared with the thread that looks up, which may outlive the one that waits.
struct Lookup {
    std::mutex mutex;
    std::condition_variable_any answered;
    bool isOver = false;
};

void lookUp(const std::string& host) {
    addrinfo* addresses = nullptr;
    if (getaddrinfo(host.c_str(), nullptr, nullptr, &addresses) == 0)
        freeaddrinfo(addresses);
}

} // namespace

bool awaitNameLookup(const std::string& host, const std::stop_token& stop) {
    auto lookup = std::make_shared<Lookup>();
    std::thread([lookup, host] {
        pthread_setname_np(pthread_self(), "ondel-names");
        lookUp(host);
        const std::lock_guard lock(lookup->mutex);
        lookup->isOver = true;
        lookup->answered.notify_all();
    }).detach();
    std::unique_lock lock(lookup->mutex);
    return lookup->answered.wait(lock, stop, [&] { return lookup->isOver; });
}

} // namespace OndelCore::platform
