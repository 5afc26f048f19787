#include "TarnwickKit/model/runs/ListFile.h"

#include "OndelCore/logging/Log.h"

#include <QDateTime>

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

using OndelCore::logging::Log;
using OndelCore::logging::LogField;

namespace {

constexpr std::size_t unreadableFilesKept = 3;

/// Keeps the newest few unreadable files. Their names sort by time; `newest` counts as the newest even if the
/// clock was set back.
void dropOldUnreadableFiles(const fs::path& newest, std::string_view prefix) {
    std::vector<fs::path> others;
    std::error_code error;
    for (fs::directory_iterator entry(newest.parent_path(), error), end; entry != end;
         entry.increment(error)) {
        if (entry->path().filename().native().starts_with(prefix) && entry->path() != newest)
            others.push_back(entry->path());
    }
    std::ranges::sort(others, std::greater());
    for (std::size_t index = unreadableFilesKept - 1; index < others.size(); ++index)
        fs::remove(others[index], error);
}

} // namespace

fs::path behindLinks(fs::path path) {
    constexpr int mostLinks = 40; // the kernel's limit
    for (int link = 0; link < mostLinks; ++link) {
        std::error_code isNoLink;
        const fs::path target = fs::read_symlink(path, isNoLink);
        if (isNoLink)
            break;
        path = path.parent_path() / target;
    }
    return path;
}

fs::path lockOf(const fs::path& file) { return fs::path(file) += ".lock"; }

bool isFinalReadError(const std::error_code& error) {
    constexpr std::array finalErrors{std::errc::not_supported, std::errc::file_too_large,
                                     std::errc::permission_denied, std::errc::operation_not_permitted,
                                     std::errc::no_such_device_or_address};
    return std::ranges::any_of(finalErrors, [&](std::errc each) { return error == each; });
}

bool keepBeside(const fs::path& file, std::string_view prefix, std::size_t recovered) {
    QDateTime time = QDateTime::currentDateTimeUtc();
    std::error_code error;
    fs::path kept;
    do { // of two files in one millisecond the later takes the next free name
        kept = file.parent_path() /
               (std::string(prefix) + time.toString(QStringLiteral("yyyyMMddTHHmmss.zzzZ")).toStdString() +
                ".json");
        fs::create_hard_link(file, kept, error);
        time = time.addMSecs(1);
    } while (error == std::errc::file_exists);
    if (error) // a folder, or a file system without links
        fs::rename(file, kept, error);
    if (error)
        return false;
    dropOldUnreadableFiles(kept, prefix);
    Log::app.error("damaged list kept under another name",
                   LogField::int_("recovered", static_cast<std::int64_t>(recovered)));
    return true;
}

} // namespace TarnwickKit::model
