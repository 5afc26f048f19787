#pragma once

#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickKit/model/runs/RunEvidence.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <cstdint>
#include <vector>

namespace TarnwickHost {

/// What stands behind a figure that is not the disk's: "! Invalid".
QString invalidMark();

/// The remarks on a run for people, worst first, with a title and a blank line above. Empty without remarks.
/// `randomBlock`: bytes per random operation. No line is wider than `columns`.
QString remarkList(const std::vector<OndelCore::benchmark::Remark>& remarks, std::int64_t randomBlock,
                   int columns);

/// The same for programs: as in a run file, and under "text" the sentence, under "advice" what to do.
QJsonArray remarksJson(const std::vector<OndelCore::benchmark::Remark>& remarks);
/// As in a run file.
QJsonObject evidenceJson(const TarnwickKit::model::RunEvidence& evidence);

} // namespace TarnwickHost
