#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>

/// Every figure that people see passes through here: `Formatter` in the user's locale and time zone, with its
/// rules, threads and failures.
namespace TarnwickKit::model::Format {

QString block(std::int64_t bytes);
QString bytes(std::int64_t bytes);
QString mbValue(double bytesPerSecond);
QString compact(double value);
QString rate(double bytesPerSecond);
QString grouped(double value);
QString shortStamp(const QDateTime& date);
QString runStamp(const QDateTime& date, double durationSeconds);

} // namespace TarnwickKit::model::Format
