#include "OndelCore/platform/StandardFolders.h"

#include "OndelCore/platform/linux/UserRecord.h"

#include <cstdlib>

namespace OndelCore::platform {

namespace {

/// The XDG Base Directory rules want relative values ignored.
std::optional<std::filesystem::path> absoluteOf(const char* value) {
    if (!value || *value != '/')
        return std::nullopt;
    return std::filesystem::path(value);
}

} // namespace

std::optional<std::filesystem::path> homeFolder() {
    if (auto home = absoluteOf(std::getenv("HOME")))
        return home;
    const std::optional<UserRecord> user = userRecord();
    return user ? absoluteOf(user->homeFolder.c_str()) : std::nullopt;
}

std::optional<std::filesystem::path> stateHome() {
    if (auto folder = absoluteOf(std::getenv("XDG_STATE_HOME")))
        return folder;
    const auto home = homeFolder();
    return home ? std::optional(*home / ".local" / "state") : std::nullopt;
}

} // namespace OndelCore::platform
