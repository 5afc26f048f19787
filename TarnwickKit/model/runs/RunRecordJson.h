#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QByteArray>

#include <optional>
#include <span>
#include <vector>

namespace TarnwickKit::model {

/// The JSON form of runs: one object with a key per field, in the order of the fields. Fields that are absent
/// have no key. A reader ignores keys that it does not know and is strict in everything else.
///
/// Files come from outside, so that reading fails, as a whole, on text above `maxRunFileBytes`, on curves of
/// more than `maxCurvePoints`, and on figures that cannot be shown: negative ones, and those beyond
/// `largestShownFigure` once scaled to what a screen shows. Writing fails on a record that could not be read.

inline constexpr std::size_t maxRunFileBytes = std::size_t{16} * 1024 * 1024;
inline constexpr std::size_t maxCurvePoints = 100000;
/// Shown figures pass through a signed 64-bit integer, which ends at 9.22e18; an axis rounds up from there.
inline constexpr double largestShownFigure = 9.0e18;

std::optional<QByteArray> encodeRun(const RunRecord& run);
std::optional<RunRecord> decodeRun(QByteArrayView json);
/// An array of runs.
std::optional<std::vector<RunRecord>> decodeRuns(QByteArrayView json);
/// The runs that can still be read in a damaged array, in their order. Text that is no UTF-8 reads as
/// replacement characters. Fails: empty.
std::vector<RunRecord> recoverRuns(QByteArrayView json);

} // namespace TarnwickKit::model
