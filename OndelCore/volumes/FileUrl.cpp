#include "OndelCore/volumes/FileUrl.h"

#include <QByteArray>
#include <QString>
#include <QSysInfo>

namespace OndelCore::volumes {

namespace {

constexpr std::string_view scheme = "file://";

bool isThisHost(std::string_view host) {
    return host.empty() || host == "localhost" || QSysInfo::machineHostName().toStdString() == host;
}

} // namespace

std::optional<std::filesystem::path> localPath(std::string_view url) {
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
    return path;
}

std::optional<std::filesystem::path> localPath(const QUrl& url) {
    return localPath(std::string_view(url.toEncoded().toStdString()));
}

std::string fileUrl(const std::filesystem::path& path) {
    return std::string(scheme) +
           QByteArray::fromStdString(path.native()).toPercentEncoding("/").toStdString();
}

} // namespace OndelCore::volumes
