#pragma once

#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickHost/CommandLine.h"

#include <filesystem>
#include <optional>

namespace TarnwickHost {

/// Where a run or a check wrote, and what was told of the place before. What is not told is absent.
struct RunPlace {
    std::filesystem::path folder;
    std::optional<OndelCore::volumes::VolumeInfo> volume;
    std::optional<OndelCore::volumes::VolumeCapabilities> capabilities;
};

/// What a folder is wanted for.
enum class Purpose { measure, check };

/// The one operand of a command that writes into a folder, which must exist: the bytes as given, or
/// the folder behind it (see folderBehindPortal). Whether it can be written to is left to the engine. Fails:
/// throws UsageError.
std::filesystem::path folderTo(Purpose purpose, const CommandLine& line);

/// What is told of a place. Blocks on asking for the volume that holds it. Fails: never, what is not told is
/// absent.
RunPlace placeOf(const std::filesystem::path& folder);

/// Removes what killed runs and checks left in the folder. Waits for files in use a second only: another run
/// can take hours.
void sweep(const std::filesystem::path& folder);

} // namespace TarnwickHost
