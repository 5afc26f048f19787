#include "OndelCore/platform/process/linux/UserRecord.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

namespace OndelCore::platform {

std::optional<UserRecord> userRecord() {
    passwd entry{};
    passwd* found = nullptr;
    std::vector<char> texts(1024);
    int result = 0;
    while ((result = getpwuid_r(geteuid(), &entry, texts.data(), texts.size(), &found)) == ERANGE)
        texts.resize(texts.size() * 2);
    if (result != 0 || !found)
        return std::nullopt;
    const auto text = [](const char* field) { return std::string(field ? field : ""); };
    return UserRecord{text(entry.pw_name), text(entry.pw_gecos), text(entry.pw_dir)};
}

} // namespace OndelCore::platform
