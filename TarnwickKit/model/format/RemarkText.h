#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/evidence/Remark.h"

#include <QString>

namespace TarnwickKit::model {

/// One sentence for people, with the remark's numbers: "0 % of what was read came from the disk."
ONDEL_PUBLIC QString remarkSentence(const OndelCore::benchmark::Remark& remark);
/// What to do about it, in one sentence; empty where there is nothing to do.
ONDEL_PUBLIC QString remarkAdvice(const OndelCore::benchmark::Remark& remark);
/// The weight in a word that stands beside its symbol: "Note", "Caution", "Invalid".
ONDEL_PUBLIC QString remarkWeightWord(OndelCore::benchmark::RemarkWeight weight);

} // namespace TarnwickKit::model
