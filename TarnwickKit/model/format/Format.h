#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/platform/process/UserLocale.h"

#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <cstdint>
#include <memory>
#include <optional>

namespace TarnwickKit::model {

using OndelCore::platform::UserLocale;

/// A double as an integer, without its fraction. Fails: a value that is not finite or does not fit is a
/// programming fault and stops the process.
ONDEL_PUBLIC std::int64_t wholeNumber(double value);

/// Turns figures into the texts that people read, in one locale and time zone. Every figure on the screen,
/// in an image and in the terminal passes through here.
///
/// Sizes are binary (KiB, MiB: steps of 1024) and rates are decimal (MB/s, GB/s: steps of 1000). Units are
/// not translated.
///
/// Blanks: U+0020 also replaces the U+202F and U+00A0 of a locale's date patterns. The interface's fonts have
/// no glyph for U+202F, and a stamp may break over two lines. A grouping mark that is a blank (French,
/// Polish) becomes U+00A0, so that no line breaks inside a number.
///
/// Threads: any.
class ONDEL_PUBLIC Formatter {
public:
    /// `zone`: absent is the machine's own, read again for each stamp.
    explicit Formatter(const UserLocale& locale, std::optional<QTimeZone> zone = std::nullopt);
    ~Formatter();
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    /// The formatter for the user's locale and time zone. It is made on first use.
    static const Formatter& user();

    /// A block size: "4 KiB", "1.5 KiB"; no fraction when there is none. Never more than GiB.
    QString block(std::int64_t bytes) const;
    /// A capacity: "512 B", "5.0 GiB"; always one decimal above bytes. Never more than TiB.
    QString bytes(std::int64_t bytes) const;
    /// Whole megabytes per second without their unit: "1,235". Fails: see `grouped`.
    QString mbValue(double bytesPerSecond) const;
    /// A rate of operations: "950", "12.3k".
    QString compact(double value) const;
    /// "1000 MB/s", "1.00 GB/s".
    QString rate(double bytesPerSecond) const;
    /// The time of one operation: "81 µs", "0.31 ms", "12 ms", "4.2 s".
    QString latency(double seconds) const;
    /// Truncated towards zero: "1,234". Fails: as wholeNumber.
    QString grouped(double value) const;
    /// Rounded to `digits` decimals, without grouping: "4.2".
    QString decimals(double value, int digits) const;
    /// "May 1 · 12:34 PM"
    QString shortStamp(const QDateTime& date) const;
    /// "May 1, 2024 · 12:34 PM · 63s". Fails: as wholeNumber, for the duration.
    QString runStamp(const QDateTime& date, double durationSeconds) const;
    /// "Mar 14, 2026 at 9:26 AM"
    QString dateAndTime(const QDateTime& date) const;

private:
    struct Icu;

    QString groupedInteger(std::int64_t value) const;

    std::optional<QTimeZone> m_zone;
    std::unique_ptr<Icu> m_icu;
};

/// The user's formatter, for texts of the user's language.
namespace Format {

/// A figure with its unit for a text that is written from right to left: the unit stays behind the figure.
/// Other texts get it as it is.
ONDEL_PUBLIC QString leftToRight(const QString& figure);

/// A written number as a percentage, as the user's language has it: "40 %", in Turkish "%40".
ONDEL_PUBLIC QString percent(const QString& number);

/// As the user's formatter has it.
///@{
inline QString block(std::int64_t bytes) { return leftToRight(Formatter::user().block(bytes)); }
inline QString bytes(std::int64_t bytes) { return leftToRight(Formatter::user().bytes(bytes)); }
inline QString mbValue(double bytesPerSecond) { return Formatter::user().mbValue(bytesPerSecond); }
inline QString compact(double value) { return Formatter::user().compact(value); }
inline QString rate(double bytesPerSecond) { return leftToRight(Formatter::user().rate(bytesPerSecond)); }
inline QString latency(double seconds) { return leftToRight(Formatter::user().latency(seconds)); }
inline QString grouped(double value) { return Formatter::user().grouped(value); }
inline QString decimals(double value, int digits) { return Formatter::user().decimals(value, digits); }
inline QString shortStamp(const QDateTime& date) { return Formatter::user().shortStamp(date); }
inline QString runStamp(const QDateTime& date, double durationSeconds) {
    return Formatter::user().runStamp(date, durationSeconds);
}
///@}

} // namespace Format

/// What a host application needs to show figures as this one does.
namespace TarnwickFormat {

using Format::block;
using Format::grouped;
using Format::rate;

} // namespace TarnwickFormat

} // namespace TarnwickKit::model
