#pragma once

#include "OndelCore/health/DiskSMART.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace TarnwickKit::model {

class Formatter;

/// A drive's health report as a plain text file.
/// Threads: any; the functions keep no state.
class SMARTReport {
public:
    SMARTReport() = delete;

    /// The proposed name: "S.M.A.R.T. ACME Drive X 2026-03-14.txt", with the day in the machine's zone.
    static QString fileName(const std::optional<QString>& drive, const QDateTime& date);

    /// The file's text. Every status but "Failing" reads "Verified", so a drive that is not supported must
    /// not be reported.
    static QString text(const OndelCore::health::DiskSMART& smart, const std::optional<QString>& drive,
                        const QDateTime& date);
    static QString text(const OndelCore::health::DiskSMART& smart, const std::optional<QString>& drive,
                        const QDateTime& date, const Formatter& formatter);
};

} // namespace TarnwickKit::model
