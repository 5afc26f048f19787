#include "OndelAppSupport/report/Diagnostics.h"

#include "OndelAppSupport/AppIdentity.h"
#include "OndelAppSupport/report/BugReporter.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/logging/LogStore.h"
#include "OndelCore/logging/Redact.h"
#include "OndelCore/platform/storage/ReplaceFile.h"

#include <QLocale>

#include <system_error>

namespace OndelAppSupport {

namespace fs = std::filesystem;
using OndelCore::logging::Log;
using OndelCore::logging::LogField;
using OndelCore::logging::LogStore;
using OndelCore::logging::Redact;

namespace {

constexpr std::int64_t longestLog = 30000; // bytes

QString header() {
    const QString dot = QStringLiteral(" · ");
    QStringList lines{AppIdentity::current().name + QLatin1Char(' ') + BugReporter::appVersion() + dot +
                          BugReporter::osVersion() + dot + BugReporter::architecture(),
                      QStringLiteral("Hardware: ") + BugReporter::hardwareSummary(),
                      QStringLiteral("Locale: ") + QLocale().name()};
    lines += Diagnostics::extraHeader();
    if (Redact::detail == Redact::Detail::full)
        lines += QStringLiteral("NOTE: ONDEL_LOG_FULL is set. This log is NOT redacted.");
    return lines.join(QLatin1Char('\n'));
}

} // namespace

QString Diagnostics::snapshot() {
    return header() + QStringLiteral("\n\n---- recent activity ----\n") +
           QString::fromStdString(LogStore::shared().snapshot(longestLog)) + QLatin1Char('\n');
}

std::optional<fs::path> Diagnostics::writeForPreview(const QString& text,
                                                     const std::optional<fs::path>& folder) {
    std::error_code error = std::make_error_code(std::errc::no_such_file_or_directory);
    if (folder) {
        const QString name = AppIdentity::current().name + QStringLiteral(" Diagnostics.txt");
        const fs::path file = *folder / name.toStdString();
        error = OndelCore::platform::replaceFile(file, text.toStdString(),
                                                 fs::perms::owner_read | fs::perms::owner_write);
        if (!error)
            return file;
    }
    Log::app.error("diagnostics preview failed", LogField::failure(std::system_error(error)));
    return std::nullopt;
}

} // namespace OndelAppSupport
