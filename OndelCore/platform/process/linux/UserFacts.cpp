#include "OndelCore/platform/process/UserFacts.h"

#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/process/linux/UserRecord.h"

#include <QByteArray>
#include <QtGlobal>

#include <unistd.h>

#include <array>
#include <cctype>
#include <climits>

namespace OndelCore::platform {

namespace {

/// The first field of the comment. "&" stands for the capitalized account name.
std::string fullNameOf(const UserRecord& user) {
    std::string capitalised = user.name;
    if (!capitalised.empty())
        capitalised[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(capitalised[0])));
    std::string name;
    for (const char c : user.comment.substr(0, user.comment.find(','))) {
        if (c == '&')
            name += capitalised;
        else
            name += c;
    }
    return name;
}

std::optional<std::string> hostName() {
    std::array<char, HOST_NAME_MAX + 1> name{};
    if (gethostname(name.data(), name.size() - 1) != 0)
        return std::nullopt;
    return std::string(name.data());
}

} // namespace

UserFacts userFacts() {
    UserFacts facts;
    if (const auto user = userRecord()) {
        facts.shortName = user->name;
        facts.fullName = fullNameOf(*user);
    } else if (qEnvironmentVariableIsSet("USER")) {
        facts.shortName = qgetenv("USER").toStdString();
    }
    facts.hostName = hostName();
    if (const auto home = homeFolder())
        facts.homeFolder = home->string();
    return facts;
}

} // namespace OndelCore::platform
