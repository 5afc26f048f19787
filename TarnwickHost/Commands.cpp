#include "TarnwickHost/Command.h"

#include <array>

namespace TarnwickHost {

std::span<const Command* const> commands() {
    static constexpr std::array all{&runCommand,   &showCommand,    &cardCommand,
                                    &factsCommand, &volumesCommand, &smartReportCommand};
    return all;
}

} // namespace TarnwickHost
