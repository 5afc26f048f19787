#include "OndelCore/platform/drives/linux/UDisksFigures.h"

#include <QDBusArgument>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace OndelCore::platform {

namespace {

constexpr std::uint8_t powerOnAttribute = 9;
constexpr std::uint8_t temperatureAttribute = 194;

template <typename Value>
std::optional<Value> valueOf(const QVariantMap& map, const char* name) {
    const QVariant value = map.value(QString::fromLatin1(name));
    if (value.metaType() != QMetaType::fromType<Value>())
        return std::nullopt;
    return value.value<Value>();
}

std::optional<std::uint64_t> numberOf(const QVariantMap& map, const char* name) {
    return wholeNumber(map.value(QString::fromLatin1(name)));
}

std::optional<std::int32_t> percentOf(const QVariantMap& map, const char* name) {
    const auto value = numberOf(map, name);
    if (!value || *value > 255) // a byte in the health log
        return std::nullopt;
    return static_cast<std::int32_t>(*value);
}

/// The service omits a total of 0.
std::optional<std::uint64_t> totalOf(const QVariantMap& figures, const char* name) {
    if (!figures.isEmpty() && !figures.contains(QString::fromLatin1(name)))
        return 0;
    return numberOf(figures, name);
}

/// The health log's first byte from the service's words. An unknown word sets the reserved bit, so that the
/// warning is not lost.
std::uint8_t criticalWarning(const QStringList& words) {
    constexpr std::array<std::string_view, 6> bits{"spare",    "temperature",  "degraded",
                                                   "readonly", "volatile_mem", "pmr_readonly"};
    unsigned warning = 0;
    for (const QString& word : words) {
        unsigned bit = 0;
        while (bit < bits.size() && word != QLatin1String(bits[bit]))
            ++bit;
        warning |= bit < bits.size() ? 1U << bit : 0x80U;
    }
    return static_cast<std::uint8_t>(warning);
}

/// One row of the service's ATA attribute table.
struct AtaRow {
    uchar number = 0;
    QString name;
    ushort flags = 0;
    int value = 0;
    int worst = 0;
    int threshold = 0;
    qlonglong pretty = 0;
    int unit = 0;
    QVariantMap expansion;
};

const QDBusArgument& operator>>(const QDBusArgument& argument, AtaRow& row) {
    argument.beginStructure();
    argument >> row.number >> row.name >> row.flags >> row.value >> row.worst >> row.threshold >>
        row.pretty >> row.unit >> row.expansion;
    argument.endStructure();
    return argument;
}

/// How the service computes a row's figure from the drive's raw value.
struct Scale {
    qlonglong unit; ///< added to the figure per 1 of the raw value
    qlonglong zero = 0;
};

constexpr Scale hours{3600000};        // in milliseconds
constexpr Scale celsius{1000, 273150}; // in millikelvin
constexpr Scale asIs{1};

/// Rows whose unit depends on their name (libatasmart, "make_pretty").
struct NamedScale {
    QLatin1StringView name;
    Scale scale;
};
constexpr std::array namedScales{
    NamedScale{QLatin1StringView("power-on-hours"), hours},
    NamedScale{QLatin1StringView("power-on-minutes"), {60000}},
    NamedScale{QLatin1StringView("power-on-half-minutes"), {30000}},
    NamedScale{QLatin1StringView("power-on-seconds"), {1000}},
    NamedScale{QLatin1StringView("power-on-seconds-2"), {1000}},
    NamedScale{QLatin1StringView("temperature-celsius"), celsius},
    NamedScale{QLatin1StringView("temperature-celsius-2"), celsius},
    NamedScale{QLatin1StringView("temperature-centi-celsius"), {100, 273150}},
};

/// Absent: the service does not know the row. A known row with an implausible figure keeps its name and
/// figure and loses its unit.
std::optional<Scale> scaleOf(const AtaRow& row) {
    enum Unit { unknown, none, milliseconds, sectors, milliKelvin };
    const auto named =
        std::ranges::find_if(namedScales, [&](const NamedScale& each) { return row.name == each.name; });
    if (named != namedScales.end())
        return named->scale;
    switch (row.unit) {
    case none:
    case sectors:
        return asIs;
    case milliseconds:
        return hours;
    case milliKelvin:
        return celsius;
    default:
        return std::nullopt;
    }
}

/// The drive's raw value, so that the same rules apply as to a drive that was read directly. The service
/// gives only the low 32 bits of hours, reallocated and pending sectors.
std::optional<std::uint64_t> rawValueOf(const AtaRow& row) {
    const auto scale = scaleOf(row);
    if (!scale || row.pretty < scale->zero)
        return std::nullopt;
    const qlonglong half = scale->zero == 0 ? 0 : scale->unit / 2; // temperatures may be rounded
    return static_cast<std::uint64_t>((row.pretty - scale->zero + half) / scale->unit);
}

} // namespace

std::optional<std::uint64_t> wholeNumber(const QVariant& value) {
    switch (value.userType()) {
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return value.toULongLong();
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::LongLong:
        if (value.toLongLong() >= 0)
            return value.toULongLong();
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

std::optional<NvmeSmartReport> nvmeReport(const QVariantMap& properties, const QVariant& attributes) {
    const auto warning = valueOf<QStringList>(properties, "SmartCriticalWarning");
    if (!warning)
        return std::nullopt;
    const auto figures = qdbus_cast<QVariantMap>(attributes);
    NvmeSmartReport report;
    report.criticalWarning = criticalWarning(*warning);
    constexpr std::uint64_t largestKelvin = 0xffff;
    const auto kelvin = numberOf(properties, "SmartTemperature");
    if (kelvin && *kelvin > 0 && *kelvin <= largestKelvin)
        report.temperatureCelsius = static_cast<std::int32_t>(*kelvin) - 273;
    report.powerOnHours = numberOf(properties, "SmartPowerOnHours");
    report.percentUsed = percentOf(figures, "percent_used");
    report.sparePercent = percentOf(figures, "avail_spare");
    report.spareThresholdPercent = percentOf(figures, "spare_thresh");
    report.powerCycles = numberOf(figures, "power_cycles");
    report.unsafeShutdowns = numberOf(figures, "unsafe_shutdowns");
    report.mediaErrors = numberOf(figures, "media_errors");
    report.errorLogEntries = numberOf(figures, "num_err_log_entries");
    report.busyMinutes = numberOf(figures, "ctrl_busy_time");
    report.bytesWritten = totalOf(figures, "total_data_written");
    report.bytesRead = totalOf(figures, "total_data_read");
    return report;
}

std::optional<AtaSmartReport> ataReport(const QVariantMap& properties, const QVariant& attributes) {
    const auto failing = valueOf<bool>(properties, "SmartFailing");
    if (!valueOf<bool>(properties, "SmartSupported").value_or(false) ||
        !valueOf<bool>(properties, "SmartEnabled").value_or(false) || !failing)
        return std::nullopt;
    AtaSmartReport report;
    report.thresholdExceeded = *failing;

    if (attributes.isValid()) {
        for (const AtaRow& row : qdbus_cast<QList<AtaRow>>(attributes))
            if (const auto raw = rawValueOf(row))
                report.attributes[row.number] = *raw;
        return report;
    }
    const auto seconds = numberOf(properties, "SmartPowerOnSeconds");
    if (seconds && *seconds > 0)
        report.attributes[powerOnAttribute] = *seconds / 3600;
    const auto kelvin = valueOf<double>(properties, "SmartTemperature");
    if (kelvin && *kelvin > 273.15 && *kelvin < 273.15 + 255)
        report.attributes[temperatureAttribute] = static_cast<std::uint64_t>(std::lround(*kelvin - 273.15));
    return report;
}

} // namespace OndelCore::platform
