#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickHost/Place.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

namespace TarnwickHost {

/// A finished run with what is known about it.
struct MeasuredRun {
    OndelCore::benchmark::BenchmarkPlan plan;
    OndelCore::benchmark::BenchmarkResult result;
    std::vector<OndelCore::benchmark::Remark> remarks;
    TarnwickKit::model::DriveIdentity drive;
    RunPlace place;
    std::optional<TarnwickKit::model::RunRecord> record;
};

/// A run as aligned text for a terminal, in the words and units of the window: the figures, the drive, and
/// the remarks in lines of at most `columns`. Empty for an empty result.
QString resultTable(const MeasuredRun& run, int columns);

/// A run as one object: the plan under "plan", each test that ran under its own name with every measured
/// field, its samples and the figures derived from them, under "capabilities" what the file system did when
/// it was tried, under "folder", "volume", "fileSystem" and "drive" where, and what was observed under
/// "evidence" and "remarks". A test that did not run has no key, and a flush has one only if it failed.
/// docs/run-output.schema.json describes it. Units: as the fields' own.
QJsonObject resultJson(const MeasuredRun& run);

} // namespace TarnwickHost
