#pragma once

#include <cstdint>
#include <string>

namespace OndelCore::platform {

/// The number with the grouping marks of the user's locale ("1,234" in English), UTF-8. Threads: any.
std::string groupedNumber(std::uint64_t number);

} // namespace OndelCore::platform
