#pragma once

#include "OndelCore/volumes/MountedVolumes.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickHost/TextColumns.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <QJsonObject>

#include <vector>

namespace TarnwickHost {

/// The records for programs: every field by its name, absent ones left out. Bytes of a path that are no UTF-8
/// become marks, since JSON cannot hold them.
QJsonObject volumeJson(const OndelCore::volumes::VolumeInfo& volume);
QJsonObject capabilitiesJson(const OndelCore::volumes::VolumeCapabilities& capabilities);
QJsonObject driveJson(const TarnwickKit::model::DriveIdentity& drive);
QJsonObject mountedVolumeJson(const OndelCore::volumes::MountedVolume& volume);

/// The same for people: a label and a value in each row.
std::vector<TextRow> volumeRows(const OndelCore::volumes::VolumeInfo& volume);
std::vector<TextRow> capabilityRows(const OndelCore::volumes::VolumeCapabilities& capabilities);
std::vector<TextRow> driveRows(const TarnwickKit::model::DriveIdentity& drive);

} // namespace TarnwickHost
