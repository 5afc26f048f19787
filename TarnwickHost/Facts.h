#pragma once

#include "OndelCore/health/HealthReading.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <QJsonObject>

#include <filesystem>
#include <vector>

namespace TarnwickHost {

/// The records for programs: every field by its name, absent ones left out. Bytes of a path that are no UTF-8
/// become marks, since JSON cannot hold them.
/// A path as a file URL, byte by byte.
QString urlText(const std::filesystem::path& path);
QJsonObject volumeJson(const OndelCore::volumes::VolumeInfo& volume);
QJsonObject capabilitiesJson(const OndelCore::volumes::VolumeCapabilities& capabilities);
QJsonObject driveJson(const TarnwickKit::model::DriveIdentity& drive);
QJsonObject mountedVolumeJson(const OndelCore::volumes::MountedVolume& volume);

/// The same for people: a label and a value in each row.
std::vector<TextRow> volumeRows(const OndelCore::volumes::VolumeInfo& volume);
std::vector<TextRow> capabilityRows(const OndelCore::volumes::VolumeCapabilities& capabilities);
std::vector<TextRow> driveRows(const TarnwickKit::model::DriveIdentity& drive);

/// For programs: the source, and where a device was asked the health by its fields with the raw record, or of
/// several disks with the list of their sources and records. A count above 2^63-1 loses its last digits,
/// since JSON numbers are read as doubles.
QJsonObject healthJson(const OndelCore::health::HealthReading& reading);

/// For people: where the figures come from or why there are none, the verdict, the figures.
std::vector<TextRow> healthRows(const OndelCore::health::HealthReading& reading);

} // namespace TarnwickHost
