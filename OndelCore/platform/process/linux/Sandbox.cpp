#include "OndelCore/platform/process/Sandbox.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <string_view>

namespace OndelCore::platform {

namespace {

/// Whether a list of a key file, each item with a semicolon behind it, has the item.
bool lists(std::string_view items, std::string_view item) {
    for (std::size_t end = 0; !items.empty(); items.remove_prefix(std::min(end + 1, items.size()))) {
        end = std::min(items.find(';'), items.size());
        if (items.substr(0, end) == item)
            return true;
    }
    return false;
}

} // namespace

/// Flatpak tells each of its sandboxes about itself (flatpak-metadata(5)).
std::optional<Sandbox> sandbox(const std::filesystem::path& root) {
    std::ifstream description(root / ".flatpak-info");
    if (!description)
        return std::nullopt;
    Sandbox found;
    std::string group;
    constexpr std::string_view shared = "shared=";
    for (std::string line; std::getline(description, line);) {
        if (line.starts_with('['))
            group = line;
        else if (group == "[Context]" && line.starts_with(shared))
            found.hasNetwork = lists(std::string_view(line).substr(shared.size()), "network");
    }
    return found;
}

} // namespace OndelCore::platform
