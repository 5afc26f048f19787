#include "TarnwickHost/ExportOptions.h"

#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/Terminal.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunText.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

namespace fs = std::filesystem;

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

std::string because(int error) { return ": " + std::generic_category().message(error); }

/// Why an existing file is to be kept; empty if it may be replaced.
std::string whyKept(const fs::path& path, bool isForced) {
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return errno == ENOENT ? std::string() : because(errno);
    if (!S_ISREG(facts.st_mode))
        return S_ISDIR(facts.st_mode) ? " is a folder" : " is not a regular file";
    if (isForced || facts.st_size == 0)
        return {};
    std::error_code error;
    const auto content = readRunFile(path, error);
    return content && isExport(*content) ? std::string()
                                         : " exists and holds no runs; --force would replace it";
}

} // namespace

std::optional<ExportForm> exportForm(const CommandLine& line) {
    const auto name = line.value("--format");
    if (!name)
        return std::nullopt;
    const auto* found = std::ranges::find(exportForms, *name, [](const auto& form) { return form.first; });
    if (found == exportForms.end())
        throw UsageError("--format is text, markdown, csv or json, not " + quoted(*name));
    return found->second;
}

void printRuns(const std::vector<RunRecord>& runs, std::optional<ExportForm> form) {
    if (form.value_or(ExportForm::text) == ExportForm::text)
        print(runTexts(runs, lineStyle(STDOUT_FILENO)).toStdString());
    else
        print(exported(runs, *form).toStdString());
}

OutputFile::OutputFile(std::string_view path, bool isForced)
    : m_path(path)
    , m_isForced(isForced) {
    if (path.empty() || path == "-")
        throw UsageError("--output needs the name of a file");
    std::error_code error;
    if (const fs::path behindLinks = fs::canonical(m_path, error); !error)
        m_path = behindLinks;
    const fs::path folder = m_path.has_parent_path() ? m_path.parent_path() : fs::path(".");
    int problem = look(folder.native()).error;
    if (problem == 0 && access(folder.c_str(), W_OK | X_OK) != 0)
        problem = errno;
    if (problem != 0)
        throw UsageError(quoted(std::string_view(folder.native())) + because(problem));
    if (const std::string why = whyKept(m_path, isForced); !why.empty())
        throw UsageError(quoted(path) + why);
}

bool OutputFile::write(const std::optional<QByteArray>& content) const {
    if (!content) {
        complain("A figure of this run is beyond what a file can hold.");
        return false;
    }
    constexpr fs::perms ordinary = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                                   fs::perms::group_write | fs::perms::others_read | fs::perms::others_write;
    using OndelCore::platform::Lasting;
    const std::error_code error =
        OndelCore::platform::replaceFile(m_path, content->toStdString(), ordinary, Lasting::onMedium,
                                         [this] { return whyKept(m_path, m_isForced).empty(); });
    if (error == std::errc::operation_canceled)
        complain(quoted(std::string_view(m_path.native())) + whyKept(m_path, m_isForced));
    else if (error)
        complain(quoted(std::string_view(m_path.native())) + " could not be written: " + error.message());
    return !error;
}

std::optional<OutputFile> outputFile(const CommandLine& line) {
    const auto path = line.value("--output");
    if (!path && line.has("--force"))
        throw UsageError("--force goes with --output only");
    return path ? std::optional(OutputFile(*path, line.has("--force"))) : std::nullopt;
}

} // namespace TarnwickHost
