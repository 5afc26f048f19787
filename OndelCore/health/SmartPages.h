#pragma once

#include "OndelCore/health/OndelSMART.h"

#include <array>
#include <cstdint>

namespace OndelCore::health {

/// A block of health data exactly as the drive sent it.
using SmartPage = std::array<std::uint8_t, 512>;

/// Fills the fields of a SMART / Health Information log page (NVM Express, Get Log Page, log identifier 02h).
/// Every page is accepted; nothing is judged for plausibility. Threads: any.
void decodeNvmeHealth(const SmartPage& page, OndelSMART& record);

/// Fills the fields of an ATA SMART data structure (ATA8-ACS, SMART READ DATA). Attributes that are not known
/// here are passed over; of two with the same number the later one counts. Threads: any.
void decodeAtaAttributes(const SmartPage& page, OndelSMART& record);

/// Fills the field of one ATA attribute from its 48-bit raw value. A value that no drive can have is read in
/// fewer bits. Unknown numbers change nothing, nor do values that are impossible in any width.
void keepAtaAttribute(std::uint8_t number, std::uint64_t raw, OndelSMART& record);

} // namespace OndelCore::health
