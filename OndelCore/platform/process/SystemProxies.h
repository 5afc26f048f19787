#pragma once

#include <string>
#include <vector>

namespace OndelCore::platform {

/// The proxies to be tried for a URL, in their order, as the desktop's and the environment's settings have
/// them: "http://[USER:PASSWORD@]HOST:PORT", "socks5h://…", "socks4a://…"; "" stands for none.
/// Threads: blocks, not for the main thread. Settings may name a script on a server, and one that does not
/// answer is waited for without end. Fails: settings that cannot be read are none.
std::vector<std::string> systemProxies(const std::string& url);

} // namespace OndelCore::platform
