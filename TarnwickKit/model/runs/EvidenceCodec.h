#pragma once

#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/RunEvidence.h"

#include <QStringView>

#include <cstddef>
#include <vector>

namespace TarnwickKit::model {

/// The JSON form of what was observed during a run, in run files and in the output of the terminal: objects
/// with a key per field. Absent fields, flags that are not set, and empty texts and lists have no key.
///
/// Observations are an extra, and files come from outside. So nothing in them makes a run unreadable: what
/// has another type or cannot be true is absent, with the optional part that needs it. Remarks whose code,
/// weight, test or numbers this version does not know are left out one by one. What would be left out in
/// reading is not written either.

inline constexpr std::size_t maxRemarks = 64;
inline constexpr std::size_t maxCircumstanceSamples = 4096;

/// Whether a text of the system's is short printable ASCII, as the releases of kernels are.
bool isPlainText(QStringView text);

void write(JsonWriter& json, const RunEvidence& evidence);
/// An array. Remarks beyond `maxRemarks`, the least important ones, are left out.
void write(JsonWriter& json, const std::vector<OndelCore::benchmark::Remark>& remarks);

/// Fails: throws JsonError on a value that is no object.
void read(JsonReader& json, RunEvidence& evidence);
/// Fails: throws JsonError on a value that is no array, and on one of more than `maxRemarks`.
void read(JsonReader& json, std::vector<OndelCore::benchmark::Remark>& remarks);

} // namespace TarnwickKit::model
