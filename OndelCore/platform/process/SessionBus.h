#pragma once

#include <chrono>
#include <string>

namespace OndelCore::platform {

/// Whether the message bus at these addresses (D-Bus, "Server Addresses") can be used without blocking: it
/// answers, or there is none. A bus that accepts connections and does not answer blocks each caller for half
/// a minute or more. Threads: any; blocks for up to three times `patience`.
bool busAnswers(const std::string& addresses, std::chrono::milliseconds patience);

/// The same of the session bus, for which the toolkit waits at its start.
bool sessionBusAnswers(std::chrono::milliseconds patience);

/// Makes this process and its children do without the session bus. Threads: the main one, before others exist
/// and before the bus is used.
void doWithoutSessionBus();

} // namespace OndelCore::platform
