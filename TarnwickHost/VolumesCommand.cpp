#include "TarnwickHost/Command.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/VolumeFacts.h"
#include "TarnwickKit/model/format/Format.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <array>

using namespace OndelCore::volumes;

namespace TarnwickHost {

namespace {

constexpr std::array volumesOptions{Option{"--json", "", "Print the list as one JSON array"}};

std::string json(const std::vector<MountedVolume>& volumes) {
    QJsonArray array;
    for (const MountedVolume& volume : volumes)
        array.append(mountedVolumeJson(volume));
    return QJsonDocument(array).toJson(QJsonDocument::Compact).toStdString() + '\n';
}

std::string text(const std::vector<MountedVolume>& volumes) {
    std::vector<TextRow> rows{{"Name", "Format", "Capacity", "Mounted at"}};
    for (const MountedVolume& volume : volumes)
        rows.push_back({volume.name, volume.format,
                        volume.total ? TarnwickKit::model::Format::bytes(*volume.total) : QString("--"),
                        QString::fromStdString(volume.url.string())});
    return textColumns(rows).toStdString();
}

int executeVolumes(const CommandLine& line) {
    if (!line.operands().empty())
        throw UsageError("volumes takes no operand");
    const auto volumes = mountedVolumes();
    print(line.has("--json") ? json(volumes) : text(volumes));
    return done;
}

} // namespace

const Command volumesCommand{.name = "volumes",
                             .operands = "",
                             .summary = "List the mounted volumes",
                             .options = volumesOptions,
                             .notes = R"(
Each file system is listed once, at its shortest mount point. What the system, its packages and its containers
mount for themselves is left out. A server that does not answer in time has no capacity.
)",
                             .execute = &executeVolumes};

} // namespace TarnwickHost
