#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "TarnwickKit/model/format/TextLines.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace TarnwickKit::model {

/// What stands behind a figure that is not the disk's: "! Invalid".
QString invalidMark();

/// The remarks on a run for people, worst first, with a title and a blank line above. Empty without remarks.
/// `randomBlock`: bytes per random operation. No line is wider than `columns`.
QString remarkList(const std::vector<OndelCore::benchmark::Remark>& remarks, std::int64_t randomBlock,
                   int columns);

/// What a test is about, and a sentence on it: "Random read (4 KiB): One pause over 1 s: 1.2 s."
QString aboutTest(const QString& title, const QString& sentence);

/// A test's title with what one of its figures is: "Sequential read, peak".
enum class FigureKind { sustained, peak, lowest, latency };
QString figureTitle(const QString& title, FigureKind kind);

/// "Linux 6.1.0-18-amd64" and "Ondel Tarnwick 0.2.0", as far as they are recorded.
QStringList systemNames(const RunRecord& run);

/// Stored runs as text for a terminal or a forum: each with its title, date, figures, volume, settings and
/// remarks, numbered when there are several, and then their comparison as bars. No line is wider than
/// `style.columns`, which counts as 24 below that; what does not fit goes on below or is cut. Nothing in it
/// steers a terminal or turns the direction of a line. Empty for no runs.
ONDEL_KIT QString runTexts(const std::vector<RunRecord>& runs, LineStyle style = {});

} // namespace TarnwickKit::model
