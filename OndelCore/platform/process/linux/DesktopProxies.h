#pragma once

#include <string>
#include <vector>

namespace OndelCore::platform {

// The proxies of a URL in the words of who tells them: "direct://", "http://HOST:PORT", "socks://…". Threads:
// block, not for the main thread. Fail: none if the settings cannot be read.

/// By libproxy, from the settings of the desktop and the environment. A build without it has none.
std::vector<std::string> libproxyProxies(const std::string& url);

/// By the desktop's portal, for a sandbox, which has no settings of its own. `bus`: a bus's address; empty:
/// the session's.
std::vector<std::string> portalProxies(const std::string& url, const std::string& bus = {});

} // namespace OndelCore::platform
