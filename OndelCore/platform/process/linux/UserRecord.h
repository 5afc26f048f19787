#pragma once

#include <optional>
#include <string>

namespace OndelCore::platform {

/// The effective user's entry of the user database (passwd(5)).
struct UserRecord {
    std::string name;
    std::string comment; ///< the "gecos" field: full name, then more, with commas between
    std::string homeFolder;
};

/// Fails: absent for a user without an entry, as in some containers.
std::optional<UserRecord> userRecord();

} // namespace OndelCore::platform
