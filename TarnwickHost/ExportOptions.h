#pragma once

#include "TarnwickHost/CommandLine.h"
#include "TarnwickKit/model/runs/RunExport.h"

#include <QByteArray>
#include <QtGlobal>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace TarnwickHost {

using TarnwickKit::model::ExportForm;

/// The options of commands that print or write runs.
inline constexpr Option formatOption{
    "--format", "FORM", QT_TRANSLATE_NOOP("HostHelp", "As text (default), markdown, csv or json")};
inline constexpr Option forceOption{
    "--force", "", QT_TRANSLATE_NOOP("HostHelp", "Let --output replace a file of any content")};

/// What --format asks for. Fails: absent without that option; throws UsageError for a form that is unknown.
std::optional<ExportForm> exportForm(const CommandLine& line);

/// Prints runs. Absent: as text, in the terminal's width.
void printRuns(const std::vector<TarnwickKit::model::RunRecord>& runs, std::optional<ExportForm> form);

/// A file that --output asks for. An existing one is replaced only if it is empty or holds what this program
/// writes for others (isExport), or with --force.
class OutputFile {
public:
    /// Looks whether it can be written, before long work. A symbolic link stays one.
    /// Fails: throws UsageError, also for an existing file that is to be kept.
    OutputFile(std::string_view path, bool isForced);

    /// Writes it whole or not at all, with the permissions of an ordinary file. `content`: absent is what has
    /// no form in a file. Fails: with a line on standard error.
    bool write(const std::optional<QByteArray>& content) const;

private:
    std::filesystem::path m_path;
    bool m_isForced;
};

/// Absent without --output. Fails: as OutputFile, and on --force without it.
std::optional<OutputFile> outputFile(const CommandLine& line);

} // namespace TarnwickHost
