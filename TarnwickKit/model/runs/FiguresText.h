#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QString>

namespace TarnwickKit::model {

/// A run's figures for a spreadsheet or a text: a line with the run's title and date, then a line for each
/// figure, with its name, its number and its unit between tabs. A figure that is not the disk's says so
/// behind its unit. Numbers have the user's decimal mark and no grouping.
ONDEL_KIT QString figuresText(const RunRecord& run);

} // namespace TarnwickKit::model
