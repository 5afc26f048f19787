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

/// What `variable` says, else its default's place in the home folder.
std::optional<std::filesystem::path> folderOf(const char* variable, const char* localName) {
    if (auto folder = absoluteOf(std::getenv(variable)))
        return folder;
    const auto home = homeFolder();
    return home ? std::optional(*home / ".local" / localName) : std::nullopt;
}

} // namespace

std::optional<std::filesystem::path> homeFolder() {
    if (auto home = absoluteOf(std::getenv("HOME")))
        return home;
    const std::optional<UserRecord> user = userRecord();
    return user ? absoluteOf(user->homeFolder.c_str()) : std::nullopt;
}

std::optional<std::filesystem::path> stateHome() { return folderOf("XDG_STATE_HOME", "state"); }

std::optional<std::filesystem::path> dataHome() { return folderOf("XDG_DATA_HOME", "share"); }

} // namespace OndelCore::platform
