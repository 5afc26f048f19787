#include "Tarnwick/OpenUrls.h"

#include "OndelCore/platform/volumes/PathFacts.h"
#include "TarnwickKit/model/runs/TarnwickFile.h"

#include <QByteArray>
#include <QString>
#include <QSysInfo>

#include <chrono>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view scheme = "file://";

bool isThisHost(std::string_view host) {
    return host.empty() || host == "localhost" || QSysInfo::machineHostName().toStdString() == host;
}

bool isRunFile(const fs::path& path) {
    const std::string extension = (path.has_filename() ? path : path.parent_path()).extension();
    return extension.size() > 1 && extension.substr(1) == TarnwickKit::model::TarnwickFile::runExtension;
}

} // namespace

std::optional<fs::path> localPath(std::string_view url) {
    if (!url.starts_with(scheme))
        return std::nullopt;
    url.remove_prefix(scheme.size());
    const std::size_t root = url.find('/');
    if (root == std::string_view::npos || !isThisHost(url.substr(0, root)))
        return std::nullopt;
    url = url.substr(root, url.find_first_of("?#") - root);
    const std::string path =
        QByteArray::fromPercentEncoding(QByteArray(url.data(), static_cast<qsizetype>(url.size())))
            .toStdString();
    if (path.find('\0') != std::string::npos)
        return std::nullopt;
    return fs::path(path);
}

std::string fileUrl(const fs::path& path) {
    return std::string(scheme) +
           QByteArray::fromStdString(path.native()).toPercentEncoding("/").toStdString();
}

OpenUrls OpenUrls::from(const std::vector<std::string>& urls) {
    using namespace OndelCore::platform;
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::seconds patienceWithAll(2);
    const auto end = Clock::now() + patienceWithAll;
    OpenUrls sorted;
    for (std::size_t place = 0; place < urls.size(); ++place) {
        const auto path = localPath(urls[place]);
        const bool isRun = path && isRunFile(*path);
        if (isRun)
            sorted.runs.push_back(*path);
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
        const auto facts = path && left.count() > 0
                               ? pathFacts(*path, PathQuestion::place, {.patience = left})
                               : std::nullopt;
        std::optional<fs::path> folder;
        if (facts && facts->isFolder)
            folder = facts->resolved;
        else if (path && !isRun && !facts)
            folder = path; // it may be one
        if (folder && !sorted.folder)
            sorted.folder = folder;
        if (!folder && !isRun)
            sorted.ignored.insert(place);
    }
    return sorted;
}
