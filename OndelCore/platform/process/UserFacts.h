#pragma once

#include <optional>
#include <string>

namespace OndelCore::platform {

/// Names of the user and of the machine. Absent: unknown.
struct UserFacts {
    std::optional<std::string> shortName; ///< the account: "ann"
    std::optional<std::string> fullName;  ///< the person: "Ann Example"
    std::optional<std::string> hostName;
    std::optional<std::string> homeFolder;

    bool operator==(const UserFacts&) const = default;
};

/// Threads: any; may wait for a directory server if the account comes from one.
UserFacts userFacts();

} // namespace OndelCore::platform
