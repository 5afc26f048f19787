#pragma once

#include "OndelCore/Hashing.h"

#include <cstddef>
#include <string>
#include <vector>

namespace OndelCore::health {

/// A drive's health for display. All texts are final and in UTF-8.
struct DiskSMART {
    /// The drive's own verdict, or that nothing is known of it.
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
    /// "NVMe" or "ATA", each once for several disks ("NVMe, ATA"); empty if not supported.
    std::string kind;
    std::vector<Attribute> attributes; ///< in display order
    /// One line of text: why no disk, or not every disk, could be read. Empty: all were read.
    std::string note{};

    bool isSupported() const { return status != Status::notSupported; }

    bool operator==(const DiskSMART&) const = default;
    std::size_t hash() const { return hashFields(status, kind, attributes, note); }
};

} // namespace OndelCore::health
