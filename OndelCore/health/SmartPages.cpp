#include "OndelCore/health/SmartPages.h"

#include "OndelCore/health/LittleEndian.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace OndelCore::health {

namespace {

template <std::size_t size>
using Reserved = std::array<std::uint8_t, size>;

/// A 128-bit counter. The low half suffices: 2^64 units are never reached.
struct WideCounter {
    LittleEndian<8> low;
    LittleEndian<8> high;
};

struct NvmeHealthPage {
    std::uint8_t criticalWarning;
    LittleEndian<2> compositeTemperatureKelvin;
    std::uint8_t availableSparePercent;
    std::uint8_t availableSpareThresholdPercent;
    std::uint8_t percentageUsed;
    Reserved<26> reserved6;
    WideCounter dataUnitsRead;
    WideCounter dataUnitsWritten;
    WideCounter hostReadCommands;
    WideCounter hostWriteCommands;
    WideCounter controllerBusyMinutes;
    WideCounter powerCycles;
    WideCounter powerOnHours;
    WideCounter unsafeShutdowns;
    WideCounter mediaErrors;
    WideCounter errorLogEntries;
    Reserved<320> reserved192;
};
static_assert(sizeof(NvmeHealthPage) == sizeof(SmartPage));

struct AtaAttribute {
    std::uint8_t number;
    LittleEndian<2> flags;
    std::uint8_t value;
    std::uint8_t worst;
    LittleEndian<6> raw;
    std::uint8_t reserved11;
};
static_assert(sizeof(AtaAttribute) == 12);

struct AtaSmartData {
    LittleEndian<2> revision;
    std::array<AtaAttribute, 30> attributes;
    Reserved<150> rest;
};
static_assert(sizeof(AtaSmartData) == sizeof(SmartPage));

double terabytes(const WideCounter& dataUnits) {
    constexpr double bytesPerDataUnit = 512000.0;
    constexpr double bytesPerTerabyte = 1000000000000.0;
    return static_cast<double>(dataUnits.low.value()) * bytesPerDataUnit / bytesPerTerabyte;
}

/// The field of an attribute and the width of its raw value. Some makers store other figures in the upper
/// bytes: the first of `usualBits`, 32 and `leastBits` that gives a possible value is used.
struct Destination {
    std::uint8_t number;
    std::int32_t OndelSMART::* has;
    std::uint64_t OndelSMART::* field;
    unsigned usualBits;
    unsigned leastBits; ///< smartmontools shows 24 bits of hours and 16 of sectors by default
    std::uint64_t greatest;
};

/// A hundred years of 8760 hours: drives have had this counter for less than forty.
constexpr std::uint64_t mostHours = std::uint64_t{100} * 8760;
/// Drives have a few thousand spare sectors, and report a failing condition when these are used up.
constexpr std::uint64_t mostBadSectors = 1000000;
/// One an hour for `mostHours`.
constexpr std::uint64_t mostCycles = mostHours;
/// Reached in 25 years by heads that park every 8 seconds.
constexpr std::uint64_t mostHeadLoads = 100000000;
/// More than a bad cable causes in the life of a drive.
constexpr std::uint64_t mostLinkErrors = 100000000;

constexpr std::array destinations{
    Destination{5, &OndelSMART::has_reallocated, &OndelSMART::reallocated, 48, 16, mostBadSectors},
    Destination{9, &OndelSMART::has_power_on_hours, &OndelSMART::power_on_hours, 48, 24, mostHours},
    Destination{10, &OndelSMART::has_spin_retries, &OndelSMART::spin_retries, 32, 16, mostCycles},
    Destination{12, &OndelSMART::has_power_cycles, &OndelSMART::power_cycles, 48, 16, mostCycles},
    Destination{187, &OndelSMART::has_reported_uncorrectable, &OndelSMART::reported_uncorrectable, 32, 16,
                mostBadSectors},
    Destination{193, &OndelSMART::has_load_cycles, &OndelSMART::load_cycles, 32, 24, mostHeadLoads},
    Destination{197, &OndelSMART::has_pending, &OndelSMART::pending, 32, 16, mostBadSectors},
    Destination{198, &OndelSMART::has_uncorrectable, &OndelSMART::uncorrectable, 32, 16, mostBadSectors},
    Destination{199, &OndelSMART::has_crc_errors, &OndelSMART::crc_errors, 32, 24, mostLinkErrors},
};

/// Fails: absent if no width gives a possible value. All bits set means no value.
std::optional<std::uint64_t> possibleValue(std::uint64_t raw, const Destination& destination) {
    for (const unsigned bits : {destination.usualBits, 32U, destination.leastBits}) {
        const std::uint64_t mask = (std::uint64_t{1} << bits) - 1;
        const std::uint64_t value = raw & mask;
        if (value <= destination.greatest && value != mask)
            return value;
    }
    return std::nullopt;
}

/// Attribute 194: degrees Celsius in the lowest byte, minimum and maximum above it.
void keepAtaTemperature(std::uint64_t raw, OndelSMART& record) {
    const auto degrees = static_cast<std::int32_t>(raw & 0xffU);
    if (degrees < 1 || degrees > 119)
        return;
    record.has_temperature = 1;
    record.temperature = degrees;
}

} // namespace

void decodeNvmeHealth(const SmartPage& page, OndelSMART& record) {
    constexpr std::int32_t zeroCelsiusInKelvin = 273;
    const auto health = std::bit_cast<NvmeHealthPage>(page);

    record.failing = health.criticalWarning != 0;
    record.critical_warning = health.criticalWarning;
    record.has_temperature = 1;
    record.temperature =
        static_cast<std::int32_t>(health.compositeTemperatureKelvin.value()) - zeroCelsiusInKelvin;
    record.has_spare = 1;
    record.spare = health.availableSparePercent;
    record.spare_threshold = health.availableSpareThresholdPercent;
    record.has_percent_used = 1;
    record.percent_used = health.percentageUsed;
    record.has_data_read = 1;
    record.data_read_tb = terabytes(health.dataUnitsRead);
    record.has_data_written = 1;
    record.data_written_tb = terabytes(health.dataUnitsWritten);
    record.has_host_commands = 1;
    record.host_read_commands = health.hostReadCommands.low.value();
    record.host_write_commands = health.hostWriteCommands.low.value();
    record.has_busy_minutes = 1;
    record.busy_minutes = health.controllerBusyMinutes.low.value();
    record.has_power_cycles = 1;
    record.power_cycles = health.powerCycles.low.value();
    record.has_power_on_hours = 1;
    record.power_on_hours = health.powerOnHours.low.value();
    record.has_nvme_counters = 1;
    record.unsafe_shutdowns = health.unsafeShutdowns.low.value();
    record.media_errors = health.mediaErrors.low.value();
    record.error_log_entries = health.errorLogEntries.low.value();
}

void keepAtaAttribute(std::uint8_t number, std::uint64_t raw, OndelSMART& record) {
    constexpr std::uint8_t temperature = 194;
    if (number == temperature)
        return keepAtaTemperature(raw, record);
    const auto found = std::find_if(destinations.begin(), destinations.end(),
                                    [=](const Destination& known) { return known.number == number; });
    if (found == destinations.end())
        return;
    const std::optional<std::uint64_t> value = possibleValue(raw, *found);
    if (!value)
        return;
    record.*found->has = 1;
    record.*found->field = *value;
}

void decodeAtaAttributes(const SmartPage& page, OndelSMART& record) {
    const auto data = std::bit_cast<AtaSmartData>(page);
    for (const AtaAttribute& attribute : data.attributes)
        keepAtaAttribute(attribute.number, attribute.raw.value(), record);
}

} // namespace OndelCore::health
