#include "OndelCore/platform/process/SystemProxies.h"

#include <proxy.h>

#include <array>
#include <memory>
#include <string_view>
#include <utility>

namespace OndelCore::platform {

namespace {

/// libproxy's schemes, and ours, which resolve host names at the proxy.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> schemes{{{"direct://", ""},
                                                                                {"http://", "http://"},
                                                                                {"https://", "https://"},
                                                                                {"socks://", "socks5h://"},
                                                                                {"socks5://", "socks5h://"},
                                                                                {"socks4://", "socks4a://"}}};

} // namespace

// Each call makes its own libproxy factory. A shared one would make the process wait for other threads at its
// end.
std::vector<std::string> systemProxies(const std::string& url) {
    const std::unique_ptr<pxProxyFactory, void (*)(pxProxyFactory*)> settings(px_proxy_factory_new(),
                                                                              px_proxy_factory_free);
    const std::unique_ptr<char*, void (*)(char**)> found(
        settings ? px_proxy_factory_get_proxies(settings.get(), url.c_str()) : nullptr, [](char** list) {
            if (list)
                px_proxy_factory_free_proxies(list);
        });
    if (!found)
        return {""};
    std::vector<std::string> proxies;
    for (char** next = found.get(); *next; ++next) {
        const std::string_view proxy = *next;
        for (const auto& [scheme, own] : schemes)
            if (proxy.starts_with(scheme))
                proxies.push_back(own.empty() ? std::string()
                                              : std::string(own).append(proxy.substr(scheme.size())));
    }
    return proxies;
}

} // namespace OndelCore::platform
