#include "TarnwickHost/ExportOptions.h"

#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickHost/HostText.h"
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

/// Why an existing file is to be kept; empty if it may be replaced. `name`: what the sentence calls it.
QString whyKept(const fs::path& path, bool isForced, std::string_view name) {
    const QString file = inQuotes(name);
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return errno == ENOENT ? QString() : because(file, errno);
    if (S_ISDIR(facts.st_mode))
        return HostFiles::tr("%1 is a folder").arg(file);
    if (!S_ISREG(facts.st_mode))
        return HostFiles::tr("%1 is not a regular file").arg(file);
    if (isForced || facts.st_size == 0)
        return {};
    std::error_code error;
    const auto content = readRunFile(path, error);
    return content && isExport(*content)
               ? QString()
               : HostFiles::tr("%1 exists and holds no runs; --force would replace it").arg(file);
}

} // namespace

std::optional<ExportForm> exportForm(const CommandLine& line) {
    const auto name = line.value("--format");
    if (!name)
        return std::nullopt;
    const auto* found = std::ranges::find(exportForms, *name, [](const auto& form) { return form.first; });
    if (found == exportForms.end())
        throw UsageError(HostUsage::tr("%1 is text, markdown, csv or json, not %2")
                             .arg(isolated("--format"), inQuotes(*name)));
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
        throw UsageError(HostUsage::tr("%1 needs the name of a file").arg(isolated("--output")));
    std::error_code error;
    if (const fs::path behindLinks = fs::canonical(m_path, error); !error)
        m_path = behindLinks;
    const fs::path folder = m_path.has_parent_path() ? m_path.parent_path() : fs::path(".");
    int problem = look(folder.native()).error;
    if (problem == 0 && access(folder.c_str(), W_OK | X_OK) != 0)
        problem = errno;
    if (problem != 0)
        throw UsageError(because(inQuotes(folder.native()), problem));
    if (const QString why = whyKept(m_path, isForced, path); !why.isEmpty())
        throw UsageError(why);
}

bool OutputFile::write(const std::optional<QByteArray>& content) const {
    if (!content) {
        complain(HostFiles::tr("A figure of this run is beyond what a file can hold."));
        return false;
    }
    constexpr fs::perms ordinary = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read |
                                   fs::perms::group_write | fs::perms::others_read | fs::perms::others_write;
    using OndelCore::platform::Lasting;
    const auto why = [this] { return whyKept(m_path, m_isForced, m_path.native()); };
    const std::error_code error = OndelCore::platform::replaceFile(
        m_path, content->toStdString(), ordinary, Lasting::onMedium, [&] { return why().isEmpty(); });
    if (error == std::errc::operation_canceled)
        complain(why());
    else if (error)
        complain(HostFiles::tr("%1 could not be written: %2")
                     .arg(inQuotes(m_path.native()), QString::fromStdString(error.message())));
    return !error;
}

std::optional<OutputFile> outputFile(const CommandLine& line) {
    const auto path = line.value("--output");
    if (!path && line.has("--force"))
        throw goesOnlyWith("--force", "--output");
    return path ? std::optional(OutputFile(*path, line.has("--force"))) : std::nullopt;
}

} // namespace TarnwickHost
