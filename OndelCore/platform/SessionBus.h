#pragma once

#include <chrono>

namespace OndelCore::platform {

/// Whether the session's message bus answers, or there is none. One that takes connections and then says
/// nothing holds whoever asks it something for half a minute and more, the toolkit's start among them.
/// Threads: blocks for `patience` at most with each of three steps.
bool sessionBusAnswers(std::chrono::milliseconds patience);

/// From now on this process, and what it starts, does without the session's message bus. Threads: the main
/// one, before others exist and before anything has asked for the bus.
void doWithoutSessionBus();

} // namespace OndelCore::platform
