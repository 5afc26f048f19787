#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"

#include <QByteArray>

#include <cstddef>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// The JSON form of checks: one object with a key per field, in the order of the fields. What is absent, not
/// set, 0 or empty has no key. A reader ignores unknown keys and is strict in everything else, but for the
/// evidence, which is read as that of a run.
///
/// Files come from outside. Reading fails on text above `maxRunFileBytes`, on longer lists than the limits
/// below, on negative figures and on those beyond `largestShownFigure`. Writing fails on a record that could
/// not be read.

inline constexpr std::size_t maxDefects = 1000;
inline constexpr std::size_t maxCapacityRates = 4096;
inline constexpr std::size_t maxCells = 4096;

ONDEL_KIT std::optional<QByteArray> encodeCheck(const CapacityRecord& check);
ONDEL_KIT std::optional<CapacityRecord> decodeCheck(QByteArrayView json);
/// An array of checks.
std::optional<std::vector<CapacityRecord>> decodeChecks(QByteArrayView json);
/// The checks that can be read in the damaged text of an array, in their order.
std::vector<CapacityRecord> recoverChecks(QByteArrayView json);

/// What the terminal prints under `--json`: `formatVersion`, the verdict's name, the sentence for people, and
/// the members of encodeCheck. On one line, without characters that steer a terminal. Fails: as encodeCheck.
ONDEL_KIT std::optional<QByteArray> checkJson(const CapacityRecord& check);

} // namespace TarnwickKit::model
