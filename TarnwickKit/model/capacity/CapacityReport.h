#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"
#include "TarnwickKit/model/format/TextLines.h"

#include <QString>

namespace TarnwickKit::model {

/// The check in full, as text in lines of at most `style.columns`: for a file, the clipboard and the
/// terminal. Nothing in it steers a terminal.
ONDEL_KIT QString capacityReport(const CapacityRecord& check, LineStyle style = {});
/// The name of a file with that text.
ONDEL_KIT QString capacityReportName(const CapacityRecord& check);

} // namespace TarnwickKit::model
