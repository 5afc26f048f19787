#include "OndelCore/platform/process/StandardFolders.h"

#include "OndelCore/platform/process/linux/UserRecord.h"

#include <QByteArray>
#include <QtGlobal>

#include <string>

namespace OndelCore::platform {

namespace {

/// XDG Base Directory: relative values are ignored.
std::optional<std::filesystem::path> absoluteOf(const std::string& value) {
    return value.starts_with('/') ? std::optional<std::filesystem::path>(value) : std::nullopt;
}

/// The value of `variable`, else its default in the home folder.
std::optional<std::filesystem::path> folderOf(const char* variable, const char* localName) {
    if (auto folder = absoluteOf(qgetenv(variable).toStdString()))
        return folder;
    const auto home = homeFolder();
    return home ? std::optional(*home / ".local" / localName) : std::nullopt;
}

} // namespace

std::optional<std::filesystem::path> homeFolder() {
    if (auto home = absoluteOf(qgetenv("HOME").toStdString()))
        return home;
    const std::optional<UserRecord> user = userRecord();
    return user ? absoluteOf(user->homeFolder) : std::nullopt;
}

std::optional<std::filesystem::path> stateHome() { return folderOf("XDG_STATE_HOME", "state"); }

std::optional<std::filesystem::path> dataHome() { return folderOf("XDG_DATA_HOME", "share"); }

} // namespace OndelCore::platform
