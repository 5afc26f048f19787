#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QByteArray>

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace TarnwickKit::model {

/// The JSON form of runs: one object with a key per field, in the order of the fields. Absent fields have no
/// key. A reader ignores unknown keys and is strict in everything else, but for what was observed during the
/// run (EvidenceCodec.h): that is absent if it cannot be read.
///
/// Files come from outside. Reading fails on text above `maxRunFileBytes`, on curves of more than
/// `maxCurvePoints`, and on figures that cannot be shown: negative ones, and those beyond
/// `largestShownFigure` in the unit of the screen. Writing fails on a record that could not be read.

inline constexpr std::size_t maxRunFileBytes = std::size_t{16} * 1024 * 1024;
inline constexpr std::size_t maxCurvePoints = 100000;
/// Shown figures are converted to signed 64-bit integers (9.22e18 at most), after an axis has rounded them
/// up.
inline constexpr double largestShownFigure = 9.0e18;

/// The content of a file of runs. Fails: as readRegularFile, and above maxRunFileBytes.
std::optional<std::string> readRunFile(const std::filesystem::path& path);
std::optional<std::string> readRunFile(const std::filesystem::path& path, std::error_code& error);

/// The promise of docs/run-file.md: keys are added and never change. A file that must be read in another way
/// would say so under "formatVersion"; without that key it is of this version.
inline constexpr std::int64_t runFormatVersion = 1;

ONDEL_KIT std::optional<QByteArray> encodeRun(const RunRecord& run);
std::optional<RunRecord> decodeRun(QByteArrayView json);
/// An array of runs.
std::optional<std::vector<RunRecord>> decodeRuns(QByteArrayView json);
/// A run, or the runs of an array. Fails: throws JsonError, which says for people which value cannot be read.
std::vector<RunRecord> requireRuns(QByteArrayView json);
/// The readable runs of a damaged array, in order. Invalid UTF-8 becomes replacement characters. Fails:
/// empty.
std::vector<RunRecord> recoverRuns(QByteArrayView json);

/// The name of a kind in files: "internalDrive".
std::string_view rawValue(RunRecord::Kind kind);

} // namespace TarnwickKit::model
