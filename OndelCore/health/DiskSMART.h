#pragma once

#include "OndelCore/Hashing.h"

#include <cstddef>
#include <string>
#include <vector>

namespace OndelCore::health {

/// A drive's health as shown to people. All texts are UTF-8 and finished.
struct DiskSMART {
    enum class Status { verified, failing, notSupported };

    /// One labelled figure.
    struct Attribute {
        std::string label;
        std::string value;    ///< formatted in the user's locale
        bool warning = false; ///< the figure is a concern

        bool operator==(const Attribute&) const = default;
        std::size_t hash() const { return hashFields(label, value, warning); }
    };

    Status status = Status::notSupported;
    /// "NVMe" or "ATA", of several disks each once ("NVMe, ATA"); empty when not supported.
    std::string kind;
    std::vector<Attribute> attributes; ///< in the order to show them
    /// One line of plain text: why nothing, or not every disk, could be read. Empty: all is there.
    std::string note{};

    bool isSupported() const { return status != Status::notSupported; }

    bool operator==(const DiskSMART&) const = default;
    std::size_t hash() const { return hashFields(status, kind, attributes, note); }
};

} // namespace OndelCore::health
