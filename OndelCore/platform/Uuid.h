#pragma once

#include <string>

namespace OndelCore::platform {

/// A new random UUID (RFC 4122, version 4) in upper case without braces:
/// "1B4E28BA-2FA1-4D2B-883F-0016D3CCA427". Threads: any.
std::string newUuid();

} // namespace OndelCore::platform
