#pragma once

#include "OndelCore/platform/process/UserLocale.h"

#include <QDateTime>
#include <QString>
#include <QTimeZone>

#include <cstdint>
#include <memory>
#include <optional>

namespace TarnwickKit::model {

using OndelCore::platform::UserLocale;

/// Turns figures into the texts that people read, in one locale and time zone.
///
/// Two unit systems stand side by side on purpose: sizes are binary (KiB, MiB: steps of 1024) and rates are
/// decimal (MB/s, GB/s: steps of 1000). Units are never translated.
///
/// Blanks: the texts hold U+0020 only, also where the locale's date patterns have U+202F or U+00A0, since the
/// interface's fonts have no glyph for the former and a stamp may break over two lines. The one exception is
/// a grouping mark that is a blank (French, Polish): it becomes U+00A0, so that no line breaks inside a
/// number.
///
/// Threads: any.
class Formatter {
public:
    /// `zone`: absent is the machine's own, asked anew for each stamp.
    explicit Formatter(const UserLocale& locale, std::optional<QTimeZone> zone = std::nullopt);
    ~Formatter();
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    /// The one in the user's locale and time zone, made on first use.
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
    /// Truncated towards zero: "1,234". Fails: a value that is not finite or outside a signed 64-bit integer
    /// is a programming fault and stops the process.
    QString grouped(double value) const;
    /// "May 1 · 12:34 PM"
    QString shortStamp(const QDateTime& date) const;
    /// "May 1, 2024 · 12:34 PM · 63s". Fails: as `grouped`, for the duration.
    QString runStamp(const QDateTime& date, double durationSeconds) const;
    /// "Mar 14, 2026 at 9:26 AM"
    QString dateAndTime(const QDateTime& date) const;

private:
    struct Icu;

    QString decimals(double value, int digits) const;
    QString groupedInteger(std::int64_t value) const;

    std::optional<QTimeZone> m_zone;
    std::unique_ptr<Icu> m_icu;
};

} // namespace TarnwickKit::model
