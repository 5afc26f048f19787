#pragma once

#include <QString>

#include <optional>

namespace TarnwickKit::model {

/// What a drive is called and how it is attached. Absent: the drive does not tell.
struct DriveIdentity {
    std::optional<QString> model;
    std::optional<QString> protocolName;

    bool operator==(const DriveIdentity&) const = default;
};

} // namespace TarnwickKit::model
