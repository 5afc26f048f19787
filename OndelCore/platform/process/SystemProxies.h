#pragma once

#include <string>
#include <vector>

namespace OndelCore::platform {

/// The proxies to try for a URL, in order, from the settings of the desktop and the environment:
/// "http://[USER:PASSWORD@]HOST:PORT", "socks5h://…", "socks4a://…"; "" means a direct connection. Threads:
/// blocks, not for the main thread. Settings may name a script on a server; there is no time limit on loading
/// it. Fails: unreadable settings count as none.
std::vector<std::string> systemProxies(const std::string& url);

} // namespace OndelCore::platform
