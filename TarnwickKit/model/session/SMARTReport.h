#pragma once

#include "OndelCore/health/DiskSMART.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace TarnwickKit::model {

class Formatter;

/// A drive's health as a plain text file that people save.
/// Threads: any; the functions keep no state.
class SMARTReport {
public:
    SMARTReport() = delete;

    /// The name to propose: "S.M.A.R.T. ACME Drive X 2026-03-14.txt". The day is that of the machine's zone.
    static QString fileName(const std::optional<QString>& drive, const QDateTime& date);

    /// The file's text. Of the verdicts only "Failing" is told apart: a drive that is not supported reads
    /// "Verified" here and must not be reported.
    static QString text(const OndelCore::health::DiskSMART& smart, const std::optional<QString>& drive,
                        const QDateTime& date);
    static QString text(const OndelCore::health::DiskSMART& smart, const std::optional<QString>& drive,
                        const QDateTime& date, const Formatter& formatter);
};

} // namespace TarnwickKit::model
