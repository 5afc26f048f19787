#pragma once

#include "OndelCore/health/DiskHealth.h"
#include "TarnwickHost/TextColumns.h"

#include <QJsonObject>

#include <vector>

namespace TarnwickHost {

/// For programs: the source, and where a device was asked the health by its fields with the raw record, or of
/// several disks with the list of their sources and records. A count above 2^63-1 loses its last digits,
/// since JSON numbers are read as doubles.
QJsonObject healthJson(const OndelCore::health::DiskHealth::Reading& reading);

/// For people: where the figures come from or why there are none, the verdict, the figures.
std::vector<TextRow> healthRows(const OndelCore::health::DiskHealth::Reading& reading);

} // namespace TarnwickHost
