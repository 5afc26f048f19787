#pragma once

#include <optional>
#include <string>

namespace OndelCore::platform {

/// What names the person in front of this machine, and the machine. Absent: the system does not say.
struct UserFacts {
    std::optional<std::string> shortName; ///< the account: "ann"
    std::optional<std::string> fullName;  ///< the person: "Ann Example"
    std::optional<std::string> hostName;
    std::optional<std::string> homeFolder;

    bool operator==(const UserFacts&) const = default;
};

/// Threads: any; may wait for a directory server when the account comes from one.
UserFacts userFacts();

} // namespace OndelCore::platform
