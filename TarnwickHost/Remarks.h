#pragma once

#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickKit/model/runs/RunEvidence.h"

#include <QJsonArray>
#include <QJsonObject>

#include <vector>

namespace TarnwickHost {

/// The remarks on a run for programs: as in a run file, and under "text" the sentence, under "advice" what to
/// do.
QJsonArray remarksJson(const std::vector<OndelCore::benchmark::Remark>& remarks);
/// As in a run file.
QJsonObject evidenceJson(const TarnwickKit::model::RunEvidence& evidence);

} // namespace TarnwickHost
