#pragma once

#include "OndelAppSupport/LaunchLog.h"
#include "OndelAppSupport/report/BugReporter.h"

#include <filesystem>
#include <optional>

namespace OndelAppSupport {

/// The words of a report that was neither sent nor cancelled when the program ended, kept until the next one
/// is written. They lie in a file that only the user can read; whether diagnostics go along is asked anew.
/// Threads: main. Fails: silently, without a draft.
class ReportDraft {
public:
    explicit ReportDraft(const std::optional<std::filesystem::path>& folder = logFolder());

    /// The words that were kept, of which there is then no copy any more; else an empty report.
    BugReporter::Report take() const;

    /// Does nothing for a report without words.
    void keep(const BugReporter::Report& report) const;

private:
    std::optional<std::filesystem::path> m_file;
};

} // namespace OndelAppSupport
