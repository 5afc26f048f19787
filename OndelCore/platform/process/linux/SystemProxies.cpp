#include "OndelCore/platform/process/SystemProxies.h"

#include "OndelCore/platform/process/Sandbox.h"
#include "OndelCore/platform/process/linux/DesktopProxies.h"

#include <array>
#include <string_view>
#include <utility>

namespace OndelCore::platform {

namespace {

/// The desktop's schemes, and ours, which resolve host names at the proxy.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> schemes{{{"direct://", ""},
                                                                                {"http://", "http://"},
                                                                                {"https://", "https://"},
                                                                                {"socks://", "socks5h://"},
                                                                                {"socks5://", "socks5h://"},
                                                                                {"socks4://", "socks4a://"}}};

} // namespace

std::vector<std::string> systemProxies(const std::string& url) {
    const std::vector<std::string> found = sandbox() ? portalProxies(url) : libproxyProxies(url);
    if (found.empty())
        return {""};
    std::vector<std::string> proxies;
    for (const std::string_view proxy : found)
        for (const auto& [scheme, own] : schemes)
            if (proxy.starts_with(scheme))
                proxies.push_back(own.empty() ? std::string()
                                              : std::string(own).append(proxy.substr(scheme.size())));
    return proxies;
}

} // namespace OndelCore::platform
