#pragma once

#include "OndelCore/platform/drives/Circumstances.h"

#include <memory>
#include <optional>

namespace OndelCore::platform {

/// Looks at a volume's circumstances while it is measured: once at the start, then once a second on a thread
/// of its own with the lowest priority, until it is asked to end.
class CircumstanceWatch {
public:
    virtual ~CircumstanceWatch() = default;
    /// The last temperature. Threads: any; does not block.
    virtual std::optional<double> celsius() const = 0;
    /// Ends the watch. Call once. Threads: the one that made it.
    virtual Circumstances finish() = 0;
};

/// `folder`: open, on the volume; needed until the function returns. Fails: never; what cannot be told is
/// absent. Without a thread only the first look is there.
std::unique_ptr<CircumstanceWatch> watchCircumstances(int folder);

} // namespace OndelCore::platform
