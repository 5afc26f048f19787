#include "TarnwickKit/model/format/Format.h"

#include "TarnwickKit/model/language/Language.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <unicode/dtptngen.h>
#include <unicode/numberformatter.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;

namespace {

constexpr char16_t narrowNoBreakSpace = 0x202F;
constexpr char16_t noBreakSpace = 0x00A0;
constexpr char16_t thinSpace = 0x2009;
const QString separator = u" · "_s;

/// The longest double in "%.2f" has 309 digits before the point; a sign, the point and two decimals besides.
constexpr std::size_t longestDecimal = 320;

QString toQString(const icu::UnicodeString& text) {
    return QStringView(text.getBuffer(), text.length()).toString();
}

/// A size and the unit it is scaled to.
struct Scaled {
    double value;
    std::size_t unit;
};

Scaled scale(std::int64_t bytes, std::size_t unitCount) {
    Scaled scaled{static_cast<double>(bytes), 0};
    while (scaled.value >= 1024 && scaled.unit + 1 < unitCount) {
        scaled.value *= 1.0 / 1024;
        ++scaled.unit;
    }
    return scaled;
}

constexpr std::array<QLatin1StringView, 5> sizeUnits{"B"_L1, "KiB"_L1, "MiB"_L1, "GiB"_L1, "TiB"_L1};
constexpr std::size_t blockUnitCount = 4;

std::unique_ptr<icu::SimpleDateFormat> formatOf(const icu::UnicodeString& pattern, const icu::Locale& locale,
                                                UErrorCode& status) {
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
    if (U_FAILURE(status))
        return nullptr;
    // Dates come in with the zone already applied.
    format->adoptTimeZone(icu::TimeZone::getGMT()->clone());
    return format;
}

/// The locale's own order, names and clock for the fields of `skeleton` (UTS #35, "Date Field Symbol Table").
std::unique_ptr<icu::SimpleDateFormat> dateFormat(icu::DateTimePatternGenerator& generator,
                                                  const icu::Locale& locale, const char16_t* skeleton) {
    UErrorCode status = U_ZERO_ERROR;
    return formatOf(generator.getBestPattern(skeleton, status), locale, status);
}

/// A date and a time joined by the locale's own word ("at"). ICU has that word for long dates only. In its
/// pattern {1} is the date and {0} the time.
std::unique_ptr<icu::SimpleDateFormat> joined(icu::DateTimePatternGenerator& generator,
                                              const icu::SimpleDateFormat& date,
                                              const icu::SimpleDateFormat& time, const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString datePattern;
    icu::UnicodeString timePattern;
    icu::UnicodeString pattern = generator.getDateTimeFormat(UDAT_LONG, status);
    pattern.findAndReplace(u"{1}", date.toPattern(datePattern));
    pattern.findAndReplace(u"{0}", time.toPattern(timePattern));
    return formatOf(pattern, locale, status);
}

icu::number::LocalizedNumberFormatter numberFormat(const icu::Locale& locale,
                                                   UNumberGroupingStrategy grouping) {
    return icu::number::NumberFormatter::withLocale(locale).grouping(grouping);
}

} // namespace

struct __attribute__((visibility("hidden"))) Formatter::Icu { // its symbols would name one release of ICU
    /// The shapes of dates.
    struct Dates {
        std::unique_ptr<icu::SimpleDateFormat> longDate;
        std::unique_ptr<icu::SimpleDateFormat> shortDate;
        std::unique_ptr<icu::SimpleDateFormat> time;
        std::unique_ptr<icu::SimpleDateFormat> dateAndTime;

        explicit Dates(const icu::Locale& locale);
    };

    icu::number::LocalizedNumberFormatter grouping;
    icu::number::LocalizedNumberFormatter plain;

    explicit Icu(const UserLocale& locale)
        : grouping(numberFormat(icu::Locale(locale.numbers.c_str()), UNUM_GROUPING_AUTO))
        , plain(numberFormat(icu::Locale(locale.numbers.c_str()), UNUM_GROUPING_OFF))
        , m_dateLocale(locale.dates) {}

    QString stamp(std::unique_ptr<icu::SimpleDateFormat> Dates::* format, const QDateTime& local);

private:
    const std::string m_dateLocale;
    /// SimpleDateFormat promises nothing about use by several threads at once.
    std::mutex m_lock;
    /// Made for the first date: ICU needs 2 ms for it, and a window without runs shows no date.
    std::optional<Dates> m_dates;
};

Formatter::Icu::Dates::Dates(const icu::Locale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::DateTimePatternGenerator> generator(
        icu::DateTimePatternGenerator::createInstance(locale, status));
    if (U_SUCCESS(status)) {
        longDate = dateFormat(*generator, locale, u"MMMdyyyy");
        shortDate = dateFormat(*generator, locale, u"MMMd");
        time = dateFormat(*generator, locale, u"jmm");
        if (longDate && time)
            dateAndTime = joined(*generator, *longDate, *time, locale);
    }
    if (!longDate || !shortDate || !time || !dateAndTime)
        qFatal("ICU has no data for dates");
}

QString Formatter::Icu::stamp(std::unique_ptr<icu::SimpleDateFormat> Dates::* format,
                              const QDateTime& local) {
    const QDateTime asUtc(local.date(), local.time(), QTimeZone::utc());
    icu::UnicodeString text;
    const std::lock_guard guard(m_lock);
    if (!m_dates)
        m_dates.emplace(icu::Locale(m_dateLocale.c_str()));
    ((*m_dates).*format)->format(static_cast<UDate>(asUtc.toMSecsSinceEpoch()), text);
    return toQString(text)
        .replace(narrowNoBreakSpace, u' ')
        .replace(noBreakSpace, u' ')
        .replace(thinSpace, u' ');
}

std::int64_t wholeNumber(double value) {
    // 2^63 is the least double above the largest integer; its negative is the smallest integer itself.
    constexpr double limit = 9223372036854775808.0;
    if (!(value >= -limit && value < limit))
        qFatal("a figure is not finite or does not fit into 64 bits");
    return static_cast<std::int64_t>(value);
}

Formatter::Formatter(const UserLocale& locale, std::optional<QTimeZone> zone)
    : m_zone(std::move(zone))
    , m_icu(std::make_unique<Icu>(locale)) {}

Formatter::~Formatter() = default;

const Formatter& Formatter::user() {
    static const Formatter formatter(UserLocale::fromEnvironment());
    return formatter;
}

/// "%.<digits>f" with the locale's digits and marks and without grouping. The C++ library rounds the exact
/// value of the double, and ICU only spells the digits. ICU itself would round the shortest decimal of the
/// double, which gives another result for 0.15.
QString Formatter::decimals(double value, int digits) const {
    std::array<char, longestDecimal> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, digits)
            .ptr;
    const std::string_view spelled(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    if (!std::isfinite(value))
        return QString::fromLatin1(spelled);

    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text =
        m_icu->plain.precision(icu::number::Precision::fixedFraction(digits))
            .formatDecimal({spelled.data(), static_cast<int32_t>(spelled.size())}, status)
            .toString(status);
    return U_SUCCESS(status) ? toQString(text) : QString::fromLatin1(spelled);
}

QString Formatter::groupedInteger(std::int64_t value) const {
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString text = m_icu->grouping.formatInt(value, status).toString(status);
    if (U_FAILURE(status))
        return u"0"_s;
    return toQString(text).replace(narrowNoBreakSpace, noBreakSpace);
}

QString Formatter::block(std::int64_t bytes) const {
    const Scaled scaled = scale(bytes, blockUnitCount);
    const QString number = scaled.value == std::round(scaled.value)
                               ? QString::number(static_cast<std::int64_t>(scaled.value))
                               : decimals(scaled.value, 1);
    return number + u' ' + sizeUnits.at(scaled.unit);
}

QString Formatter::bytes(std::int64_t bytes) const {
    const Scaled scaled = scale(bytes, sizeUnits.size());
    return decimals(scaled.value, scaled.unit == 0 ? 0 : 1) + u' ' + sizeUnits.at(scaled.unit);
}

QString Formatter::mbValue(double bytesPerSecond) const {
    return groupedInteger(wholeNumber(std::round(bytesPerSecond / 1e6)));
}

QString Formatter::compact(double value) const {
    return value >= 1000 ? decimals(value / 1000, 1) + u'k' : decimals(value, 0);
}

QString Formatter::rate(double bytesPerSecond) const {
    return bytesPerSecond >= 1e9 ? decimals(bytesPerSecond / 1e9, 2) + " GB/s"_L1
                                 : decimals(bytesPerSecond / 1e6, 0) + " MB/s"_L1;
}

QString Formatter::latency(double seconds) const {
    const auto spelled = [this](double value, QLatin1StringView unit) {
        return decimals(value, value < 1 ? 2 : value < 10 ? 1 : 0) + u' ' + unit;
    };
    if (seconds >= 1)
        return spelled(seconds, "s"_L1);
    return seconds >= 1e-4 ? spelled(seconds * 1e3, "ms"_L1) : spelled(seconds * 1e6, "\xB5s"_L1);
}

QString Formatter::grouped(double value) const { return groupedInteger(wholeNumber(std::trunc(value))); }

QString Formatter::shortStamp(const QDateTime& date) const {
    const QDateTime local = m_zone ? date.toTimeZone(*m_zone) : date.toLocalTime();
    return m_icu->stamp(&Icu::Dates::shortDate, local) + separator + m_icu->stamp(&Icu::Dates::time, local);
}

QString Formatter::runStamp(const QDateTime& date, double durationSeconds) const {
    const QDateTime local = m_zone ? date.toTimeZone(*m_zone) : date.toLocalTime();
    return m_icu->stamp(&Icu::Dates::longDate, local) + separator + m_icu->stamp(&Icu::Dates::time, local) +
           separator + QString::number(wholeNumber(std::round(durationSeconds))) + u's';
}

QString Formatter::dateAndTime(const QDateTime& date) const {
    return m_icu->stamp(&Icu::Dates::dateAndTime, m_zone ? date.toTimeZone(*m_zone) : date.toLocalTime());
}

QString Format::percent(const QString& number) {
    //: A percentage: %1 is the number
    return leftToRight(QCoreApplication::translate("Format", "%1 %").arg(number));
}

QString Format::leftToRight(const QString& figure) {
    constexpr QChar leftToRightIsolate(0x2066);
    constexpr QChar popDirectionalIsolate(0x2069);
    return Language::isRightToLeft() ? leftToRightIsolate + figure + popDirectionalIsolate : figure;
}

} // namespace TarnwickKit::model
