#include "TarnwickHost/Command.h"
#include "TarnwickHost/Folder.h"
#include "TarnwickHost/HealthFacts.h"
#include "TarnwickHost/Output.h"
#include "TarnwickHost/VolumeFacts.h"

#include <QJsonDocument>

#include <array>
#include <filesystem>

using namespace OndelCore::volumes;
using OndelCore::health::DiskHealth;
using TarnwickKit::model::DriveIdentity;
using TarnwickKit::model::DriveInfo;

namespace TarnwickHost {

namespace {

constexpr std::array factsOptions{Option{"--json", "", "Print the facts as one JSON object"}};

struct Facts {
    std::optional<VolumeInfo> volume;
    std::optional<VolumeCapabilities> capabilities;
    DriveIdentity drive;
    DiskHealth::Reading health;
};

Facts factsOf(const std::filesystem::path& folder) {
    Facts facts{.volume = VolumeInfo::load(Location::local(folder)),
                .capabilities = VolumeCapabilities::probe(Location::local(folder)),
                .drive = {},
                .health = DiskHealth::readInDetail(folder)};
    if (facts.volume && facts.volume->volumeURL)
        facts.drive = DriveInfo::identity(*facts.volume->volumeURL);
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
    const auto add = [&rows](const char* title, const std::vector<TextRow>& section) {
        if (!rows.empty())
            rows.emplace_back();
        rows.push_back({title});
        for (const TextRow& row : section)
            rows.push_back({"  " + row.front(), row.back()});
    };
    if (facts.volume)
        add("Volume", volumeRows(*facts.volume));
    if (facts.capabilities)
        add("File system", capabilityRows(*facts.capabilities));
    add("Drive", driveRows(facts.drive));
    add("Health", healthRows(facts.health));
    return textColumns(rows);
}

int executeFacts(const CommandLine& line) {
    const Facts facts = factsOf(folderIn(line));
    print(line.has("--json") ? QJsonDocument(json(facts)).toJson(QJsonDocument::Compact).toStdString() + '\n'
                             : text(facts).toStdString());
    return done;
}

} // namespace

const Command factsCommand{.name = "facts",
                           .operands = "FOLDER",
                           .summary = "Show what holds FOLDER: volume, file system, drive and its health",
                           .options = factsOptions,
                           .notes = R"(
Nothing is written anywhere. What the system does not tell reads "--" or "not known", and is left out of the JSON
object.
)",
                           .execute = &executeFacts};

} // namespace TarnwickHost
