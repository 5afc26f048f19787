#pragma once

#include <cstddef>

namespace OndelCore::platform {

/// Fills `size` bytes from the system's generator. Threads: any. Fails: stops the process, since a system
/// without its generator can do nothing right.
void fillRandom(void* bytes, std::size_t size);

} // namespace OndelCore::platform
