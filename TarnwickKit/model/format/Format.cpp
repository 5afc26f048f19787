#include "TarnwickKit/model/format/Format.h"

#include "TarnwickKit/model/format/Formatter.h"

namespace TarnwickKit::model::Format {

QString block(std::int64_t bytes) { return Formatter::user().block(bytes); }
QString bytes(std::int64_t bytes) { return Formatter::user().bytes(bytes); }
QString mbValue(double bytesPerSecond) { return Formatter::user().mbValue(bytesPerSecond); }
QString compact(double value) { return Formatter::user().compact(value); }
QString rate(double bytesPerSecond) { return Formatter::user().rate(bytesPerSecond); }
QString grouped(double value) { return Formatter::user().grouped(value); }
QString shortStamp(const QDateTime& date) { return Formatter::user().shortStamp(date); }
QString runStamp(const QDateTime& date, double durationSeconds) {
    return Formatter::user().runStamp(date, durationSeconds);
}

} // namespace TarnwickKit::model::Format
