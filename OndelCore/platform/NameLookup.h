#pragma once

#include <stop_token>
#include <string>

namespace OndelCore::platform {

/// Waits until the system's name service has answered for `host`, whatever it says, or a stop is requested.
/// To be asked before a network library is: a dead name server takes many seconds, a lookup cannot be broken
/// off, and a process does not end before its library's lookups do. This one is left behind. Threads: blocks,
/// not for the main thread. Fails: false when stopped.
bool awaitNameLookup(const std::string& host, const std::stop_token& stop);

} // namespace OndelCore::platform
