#pragma once

#include "TarnwickHost/Command.h"

#include <QString>

#include <span>

namespace TarnwickHost {

/// The texts of --help in the user's language. Lines of a translation have at most `columns`, so far as the
/// options leave room; those of the English text are as they were written.
QString helpOf(const Command& command, int columns);
QString helpOfProgram(std::span<const Command* const> commands, int columns);

} // namespace TarnwickHost
