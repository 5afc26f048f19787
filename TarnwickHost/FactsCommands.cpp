#include "OndelCore/health/HealthReading.h"
#include "OndelCore/volumes/VolumeQuestions.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/Facts.h"
#include "TarnwickHost/HostText.h"
#include "TarnwickHost/Output.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/HealthText.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/session/DriveInfo.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <filesystem>

using namespace OndelCore::volumes;
using OndelCore::health::HealthReading;
using OndelCore::health::readHealth;
using OndelCore::platform::SystemSources;
using TarnwickKit::model::DriveIdentity;
using TarnwickKit::model::DriveInfo;
using TarnwickKit::model::harmless;
using TarnwickKit::model::healthSource;
using TarnwickKit::model::SMARTReport;
using TarnwickKit::model::textColumns;
using TarnwickKit::model::volumeFormatText;
using TarnwickKit::model::volumeNameText;

namespace TarnwickHost {

namespace {

constexpr std::array factsOptions{
    Option{"--json", "", QT_TRANSLATE_NOOP("HostHelp", "Print the facts as one JSON object")}};

struct Facts {
    std::optional<VolumeInfo> volume;
    std::optional<VolumeCapabilities> capabilities;
    DriveIdentity drive;
    HealthReading health;
};

Facts factsOf(const std::filesystem::path& folder, const SystemSources& sources) {
    Facts facts{.volume = OndelCore::volumes::loadVolumeInfo(Location::local(folder), sources),
                .capabilities = OndelCore::volumes::probeCapabilities(Location::local(folder), sources),
                .drive = {},
                .health = readHealth(folder, sources)};
    if (facts.volume && facts.volume->volumeURL)
        facts.drive = DriveInfo::identity(*facts.volume->volumeURL, sources);
    return facts;
}

QJsonObject json(const Facts& facts) {
    QJsonObject object{{"drive", driveJson(facts.drive)}, {"health", healthJson(facts.health)}};
    if (facts.volume)
        object.insert("volume", volumeJson(*facts.volume));
    if (facts.capabilities)
        object.insert("capabilities", capabilitiesJson(*facts.capabilities));
    return object;
}

QString text(const Facts& facts) {
    std::vector<TextRow> rows;
    const auto add = [&rows](const QString& title, const std::vector<TextRow>& section) {
        if (!rows.empty())
            rows.emplace_back();
        rows.push_back({title});
        for (const TextRow& row : section)
            rows.push_back({"  " + row.front(), row.back()});
    };
    if (facts.volume)
        add(HostFacts::tr("Volume"), volumeRows(*facts.volume));
    if (facts.capabilities)
        add(HostFacts::tr("File system"), capabilityRows(*facts.capabilities));
    add(HostFacts::tr("Drive"), driveRows(facts.drive));
    add(HostFacts::tr("Health"), healthRows(facts.health));
    return textColumns(rows);
}

int executeFacts(const CommandLine& line) {
    const SystemSources sources;
    const Facts facts = factsOf(folderIn(line, sources.mountTable), sources);
    if (line.has("--json"))
        print(QJsonDocument(json(facts)));
    else
        print(text(facts).toStdString());
    return done;
}

constexpr std::array volumesOptions{
    Option{"--json", "", QT_TRANSLATE_NOOP("HostHelp", "Print the list as one JSON array")}};

QJsonDocument json(const std::vector<MountedVolume>& volumes) {
    QJsonArray array;
    for (const MountedVolume& volume : volumes)
        array.append(mountedVolumeJson(volume));
    return QJsonDocument(array);
}

std::string text(const std::vector<MountedVolume>& volumes) {
    std::vector<TextRow> rows{{HostFacts::tr("Name"), HostFacts::tr("Format"), HostFacts::tr("Capacity"),
                               HostFacts::tr("Mounted at")}};
    for (const MountedVolume& volume : volumes)
        rows.push_back({volumeNameText(volume.name), volumeFormatText(volume.format),
                        volume.total ? TarnwickKit::model::Format::bytes(*volume.total) : QString("--"),
                        QString::fromStdString(volume.url.string())});
    return textColumns(rows).toStdString();
}

int executeVolumes(const CommandLine& line) {
    if (!line.operands().empty())
        throw UsageError(HostUsage::tr("%1 takes no operand").arg(isolated("volumes")));
    const auto volumes = mountedVolumes();
    if (line.has("--json"))
        print(json(volumes));
    else
        print(text(volumes));
    return done;
}

std::optional<QString> driveName(const std::filesystem::path& folder, const SystemSources& sources) {
    const std::optional<VolumeInfo> volume =
        OndelCore::volumes::loadVolumeInfo(Location::local(folder), sources);
    if (!volume || !volume->volumeURL)
        return std::nullopt;
    return DriveInfo::identity(*volume->volumeURL, sources).model;
}

int executeSmartReport(const CommandLine& line) {
    const SystemSources sources;
    const std::filesystem::path folder = folderIn(line, sources.mountTable);
    const HealthReading reading = readHealth(folder, sources);
    if (!reading.smart || !reading.smart->isSupported()) {
        //: %1: the reason.
        complain(HostFacts::tr("no S.M.A.R.T. figures: %1").arg(healthSource(reading.source)));
        return failed;
    }
    const QString text =
        SMARTReport::text(*reading.smart, driveName(folder, sources), QDateTime::currentDateTime());
    QStringList lines = text.split('\n');
    std::ranges::transform(lines, lines.begin(), harmless); // a drive's name may hold anything
    print(lines.join('\n').toStdString());
    return done;
}

constexpr std::array factsNotes{
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "Nothing is written anywhere. What the system does not tell reads "
                                           "\"--\" or \"not known\", and is left out of the JSON\n"
                                           "object.")},
};

constexpr std::array volumesNotes{
    Note{"", QT_TRANSLATE_NOOP(
                 "HostHelp",
                 "Each file system is listed once, at its shortest mount point. What the system, its "
                 "packages and its containers\n"
                 "mount for themselves is left out. A server that does not answer in time has no capacity.")},
};

constexpr std::array smartReportNotes{
    Note{"", QT_TRANSLATE_NOOP("HostHelp", "The drive is only looked at: a sleeping one is not woken and "
                                           "nothing is switched on in it. Where its health comes\n"
                                           "from, or why there is none, is told by \"facts\".")},
};

} // namespace

const Command factsCommand{
    .name = "facts",
    .operands = "FOLDER",
    .summary =
        QT_TRANSLATE_NOOP("HostHelp", "Show what holds FOLDER: volume, file system, drive and its health"),
    .options = factsOptions,
    .notes = factsNotes,
    .execute = &executeFacts};

const Command volumesCommand{.name = "volumes",
                             .operands = "",
                             .summary = QT_TRANSLATE_NOOP("HostHelp", "List the mounted volumes"),
                             .options = volumesOptions,
                             .notes = volumesNotes,
                             .execute = &executeVolumes};

const Command smartReportCommand{
    .name = "smart-report",
    .operands = "FOLDER",
    .summary = QT_TRANSLATE_NOOP("HostHelp", "Print the health of the drive that holds FOLDER"),
    .options = {},
    .notes = smartReportNotes,
    .execute = &executeSmartReport};

} // namespace TarnwickHost
