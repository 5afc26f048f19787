#pragma once

#include <string>
#include <vector>

namespace TarnwickHost {

/// What the program that draws cards answered.
struct CardAnswer {
    int status; ///< an ExitStatus
    std::string output;
};

/// Draws a card in a program of its own, "tarnwick-host-card", so that no other command loads the graphics
/// libraries. It writes its own errors to standard error. `arguments`: as those of the "card" command. Fails:
/// `failed`, with a line on standard error.
CardAnswer drawCard(const std::vector<std::string>& arguments);

} // namespace TarnwickHost
