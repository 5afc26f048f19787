#pragma once

#include "OndelCore/health/DiskHealth.h"

#include <string>

namespace OndelCore::health {

/// "Temperature 38 °C, Life used 91% !, " with the note at the end.
inline std::string rowsOf(const DiskSMART& smart) {
    std::string text;
    for (const DiskSMART::Attribute& row : smart.attributes)
        text += row.label + ' ' + row.value + (row.warning ? " !, " : ", ");
    return text + smart.note;
}

} // namespace OndelCore::health
