#pragma once

#include <string_view>

namespace TarnwickHost {

/// Gives each of the three standard descriptors that is closed something harmless to be, so that no file
/// opened later takes its number and receives what was meant for people. Writing to one that was closed still
/// fails. Call first.
void occupyStandardDescriptors();

/// Writes all of `utf8` to standard output.
/// Fails: throws std::system_error when not all of it could be written, also when nobody reads any more.
void print(std::string_view utf8);

/// Fails with the same error as print would, before work is done whose result could not be shown.
void requireStandardOutput();

/// Writes `line` and a line break to standard error, as one write. Fails: silently; there is nobody left to
/// tell.
void complain(std::string_view line);

} // namespace TarnwickHost
