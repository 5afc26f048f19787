#pragma once

#include <string>

namespace OndelCore::platform {

/// The system's wording for an errno value, as strerror(3) has it. Threads: any.
std::string errorText(int error);

} // namespace OndelCore::platform
