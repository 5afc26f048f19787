#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/capacity/CapacityProgress.h"
#include "TarnwickKit/model/capacity/CapacityRecord.h"

#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace TarnwickKit::model {

/// What a check found, in one sentence.
ONDEL_KIT QString capacitySentence(const CapacityRecord& check);

/// Sentences on what the first one does not tell: that a check was quick, was stopped or became shorter than
/// planned, where its data came from, and what no check can tell. Never empty: the last is always there.
ONDEL_KIT QStringList capacityNotes(const CapacityRecord& check);

/// A labelled fact of a check.
struct CapacityFact {
    QString label;
    QString value;
    bool isWarning = false;

    bool operator==(const CapacityFact&) const = default;
};

/// The facts behind the sentence. What is not known is left out.
ONDEL_KIT std::vector<CapacityFact> capacityFacts(const CapacityRecord& check);

/// One sentence per place that did not come back as written, and one more on those that are not listed.
/// `most`: so many places at most.
ONDEL_KIT QStringList capacityDefects(const CapacityRecord& check, std::size_t most);

/// What a check is doing: "Writing", "Reading back".
ONDEL_KIT QString capacityPhaseName(OndelCore::capacity::CapacityPhase phase);
/// What a state of a cell is called in a legend: "Not written yet", "Changed".
ONDEL_KIT QString blockStateName(OndelCore::capacity::BlockState state);

/// "63 s", "14 min", "2 h 5 min".
ONDEL_KIT QString spanText(double seconds);

/// A size as makers print it on drives, in decimal units: "128 GB", "31.4 GB".
ONDEL_KIT QString decimalSize(std::int64_t bytes);

} // namespace TarnwickKit::model
