#include "TarnwickKit/model/session/DriveInfo.h"

#include <QStringList>

#include <array>
#include <string_view>

namespace TarnwickKit::model {

namespace {

struct NetworkProtocol {
    std::string_view filesystemType;
    std::string_view name;
};
constexpr std::array networkProtocols = {
    NetworkProtocol{"smbfs", "SMB"}, NetworkProtocol{"cifs", "SMB"},      NetworkProtocol{"nfs", "NFS"},
    NetworkProtocol{"afpfs", "AFP"}, NetworkProtocol{"webdav", "WebDAV"}, NetworkProtocol{"ftp", "FTP"},
};

std::optional<QString> readValue(const std::optional<std::string>& value) {
    if (!value)
        return std::nullopt;
    const QString text = QString::fromStdString(*value).trimmed();
    return text.isEmpty() ? std::nullopt : std::optional(text);
}

} // namespace

DriveIdentity DriveInfo::identity(const std::filesystem::path& volumeURL,
                                  const OndelCore::platform::SystemSources& sources) {
    const auto description = OndelCore::platform::describeDrive(volumeURL, sources);
    return description ? identity(*description) : DriveIdentity();
}

DriveIdentity DriveInfo::identity(const OndelCore::platform::DriveDescription& description) {
    QStringList names;
    for (const auto& value : {readValue(description.deviceVendor), readValue(description.deviceModel)})
        if (value)
            names.append(*value);
    DriveIdentity identity;
    if (!names.isEmpty())
        identity.model = names.join(QLatin1Char(' '));
    identity.protocolName = readValue(description.busName);
    if (!identity.protocolName)
        identity.protocolName = readValue(description.deviceProtocol);
    return identity;
}

std::optional<QString> DriveInfo::networkProtocol(const std::optional<QString>& filesystemType) {
    if (!filesystemType)
        return std::nullopt;
    const std::string type = filesystemType->toLower().toStdString();
    for (const NetworkProtocol& row : networkProtocols)
        if (row.filesystemType == type)
            return QString::fromUtf8(row.name);
    return std::nullopt;
}

} // namespace TarnwickKit::model
