#pragma once

#include "OndelCore/health/OndelSMART.h"

#include <array>
#include <cstdint>

namespace OndelCore::health {

/// A block of health data in the drive's own format.
using SmartPage = std::array<std::uint8_t, 512>;

/// Fills the fields of a SMART / Health Information log page (NVM Express, Get Log Page, log identifier 02h).
/// Accepts every page and does not check plausibility. Threads: any.
void decodeNvmeHealth(const SmartPage& page, OndelSMART& record);

/// Fills the fields of an ATA SMART data structure (ATA8-ACS, SMART READ DATA). Unknown attributes are
/// skipped; of two with the same number the later one is used. Threads: any.
void decodeAtaAttributes(const SmartPage& page, OndelSMART& record);

/// Fills the field of one ATA attribute from its 48-bit raw value. An impossible value is read again from
/// fewer bits. Unknown numbers, and values that are impossible in each width, are ignored.
void keepAtaAttribute(std::uint8_t number, std::uint64_t raw, OndelSMART& record);

} // namespace OndelCore::health
