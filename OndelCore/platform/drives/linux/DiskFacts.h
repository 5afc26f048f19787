#pragma once

#include "OndelCore/platform/drives/BlockDevices.h"
#include "OndelCore/platform/drives/Circumstances.h"

namespace OndelCore::platform {

/// Adds what the device tree says of a volume's disks and of the layers above them, but for their links.
/// Threads: any; no device is opened.
void addDiskFacts(Circumstances& circumstances, const BlockStack& stack);

} // namespace OndelCore::platform
