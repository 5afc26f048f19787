#pragma once

#include "OndelCore/platform/drives/SystemSources.h"
#include "OndelCore/platform/volumes/FileSystemAnswers.h"
#include "OndelCore/platform/volumes/VolumeResources.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::volumes {

// The questions of the public headers, asked of other sources than the system's own: tests make some up, and
// questions with the same sources share one reading of the mount table. For this project alone.

/// See VolumeInfo::load.
ONDEL_KIT std::optional<VolumeInfo> loadVolumeInfo(const Location& location,
                                                   const platform::SystemSources& sources);
/// Makes the record from the system's answers, with defaults for missing ones.
VolumeInfo volumeInfoOf(const platform::VolumeResources& resources, std::optional<std::string> device);

/// See VolumeCapabilities::probe.
ONDEL_KIT std::optional<VolumeCapabilities> probeCapabilities(const Location& location,
                                                              const platform::SystemSources& sources);
/// Makes the record from the file system's answers.
VolumeCapabilities capabilitiesOf(const platform::FileSystemAnswers& answers);

/// See mountedVolumes.
std::vector<MountedVolume>
mountedVolumesIn(const platform::SystemSources& sources,
                 std::chrono::milliseconds patience = std::chrono::milliseconds(500));

} // namespace OndelCore::volumes
