#include "examples/host/Command.h"

#include <array>

namespace examples::host {

std::span<const Command* const> commands() {
    static constexpr std::array all{&runCommand,   &showCommand,    &cardCommand,
                                    &factsCommand, &volumesCommand, &smartReportCommand};
    return all;
}

} // namespace examples::host
