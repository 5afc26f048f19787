#include "OndelCore/platform/process/linux/DesktopProxies.h"

#include <proxy.h>

#include <memory>

namespace OndelCore::platform {

// Each call makes its own libproxy factory. A shared one would make the process wait for other threads at its
// end.
std::vector<std::string> libproxyProxies(const std::string& url) {
    const std::unique_ptr<pxProxyFactory, void (*)(pxProxyFactory*)> settings(px_proxy_factory_new(),
                                                                              px_proxy_factory_free);
    const std::unique_ptr<char*, void (*)(char**)> found(
        settings ? px_proxy_factory_get_proxies(settings.get(), url.c_str()) : nullptr, [](char** list) {
            if (list)
                px_proxy_factory_free_proxies(list);
        });
    std::vector<std::string> proxies;
    for (char** next = found.get(); next && *next; ++next)
        proxies.emplace_back(*next);
    return proxies;
}

} // namespace OndelCore::platform
