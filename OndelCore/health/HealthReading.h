#pragma once

#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/health/SmartReader.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace OndelCore::health {

/// A volume's health with its sources. For this project alone.
struct HealthReading {
    std::optional<DiskSMART> smart;
    std::vector<SmartReading> disks;
    /// One line of text: which reader answered ("NVMe health log of nvme0n1"), or why none did.
    std::string source;
};

/// See DiskHealth::read.
ONDEL_KIT HealthReading readHealth(const std::filesystem::path& mountPath,
                                   const platform::SystemSources& sources = {});

/// The worst verdict of all disks, and the rows of all. With several disks each row names its disk. Disks
/// without an answer are counted in a row and in `note`.
DiskSMART smartOf(const SmartReadings& readings);

} // namespace OndelCore::health
