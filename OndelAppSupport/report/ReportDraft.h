#pragma once

#include "OndelAppSupport/LaunchLog.h"
#include "OndelAppSupport/report/BugReporter.h"

#include <filesystem>
#include <optional>

namespace OndelAppSupport {

/// The text of a report that was neither sent nor cancelled when the program ended. It is stored in a file
/// that only the user can read, without the choice of diagnostics. Threads: main. Fails: silently.
class ReportDraft {
public:
    explicit ReportDraft(const std::optional<std::filesystem::path>& folder = logFolder());

    /// Reads and removes the stored text. An empty report without one.
    BugReporter::Report take() const;

    /// Does nothing for a report without text.
    void keep(const BugReporter::Report& report) const;

private:
    std::optional<std::filesystem::path> m_file;
};

} // namespace OndelAppSupport
