#pragma once

#include <chrono>
#include <string>

namespace OndelCore::platform {

/// Whether the message bus at these addresses (D-Bus, "Server Addresses") answers, or there is none. One that
/// takes connections and then says nothing holds whoever asks it something for half a minute and more.
/// Threads: any; blocks for `patience` at most with each of three steps.
bool busAnswers(const std::string& addresses, std::chrono::milliseconds patience);

/// The same of the session's bus, which the toolkit's start waits for.
bool sessionBusAnswers(std::chrono::milliseconds patience);

/// From now on this process, and what it starts, does without the session's message bus. Threads: the main
/// one, before others exist and before anything has asked for the bus.
void doWithoutSessionBus();

} // namespace OndelCore::platform
