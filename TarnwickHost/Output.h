#pragma once

#include <string_view>

class QJsonDocument;
class QString;

namespace TarnwickHost {

/// Opens /dev/null in place of each standard descriptor that is closed. Otherwise a file opened later would
/// get its number and receive the output. Writing to a descriptor that was closed still fails. Call first.
void occupyStandardDescriptors();

/// Writes all of `utf8` to standard output.
/// Fails: throws std::system_error if not all of it could be written, as into a closed pipe.
void print(std::string_view utf8);

/// Prints JSON on one line. Characters that would steer a terminal are escapes in it. Fails: as print.
void print(const QJsonDocument& json);

/// Fails as print does if standard output cannot be written to. Call before a long measurement.
void requireStandardOutput();

/// Writes `line` and a line break to standard error, as one write. Fails: silently.
void complain(std::string_view line);
void complain(const QString& line);

} // namespace TarnwickHost
