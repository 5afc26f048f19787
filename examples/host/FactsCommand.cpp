#include "examples/host/Command.h"
#include "examples/host/Output.h"
#include "examples/host/VolumeFacts.h"

#include <QJsonDocument>

#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>

using namespace OndelCore::volumes;
using TarnwickKit::model::DriveIdentity;
using TarnwickKit::model::DriveInfo;

namespace examples::host {

namespace {

constexpr std::array options{Option{"--json", "", "Print the facts as one JSON object"}};

std::filesystem::path folderIn(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FOLDER is missing");
    if (line.operands().size() > 1)
        throw UsageError("one FOLDER at a time");
    const std::filesystem::path folder = line.operands().front();
    struct stat facts {};
    if (stat(folder.c_str(), &facts) != 0)
        throw UsageError(quoted(line.operands().front()) + ": " + std::strerror(errno));
    return folder;
}

struct Facts {
    std::optional<VolumeInfo> volume;
    std::optional<VolumeCapabilities> capabilities;
    DriveIdentity drive;
};

Facts factsOf(const std::filesystem::path& folder) {
    Facts facts{.volume = VolumeInfo::load(Location::local(folder)),
                .capabilities = VolumeCapabilities::probe(Location::local(folder)),
                .drive = {}};
    if (facts.volume && facts.volume->volumeURL)
        facts.drive = DriveInfo::identity(*facts.volume->volumeURL);
    return facts;
}

QJsonObject json(const Facts& facts) {
    QJsonObject object{{"drive", driveJson(facts.drive)}};
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
    return textColumns(rows);
}

int execute(const CommandLine& line) {
    const Facts facts = factsOf(folderIn(line));
    print(line.has("--json") ? QJsonDocument(json(facts)).toJson(QJsonDocument::Compact).toStdString() + '\n'
                             : text(facts).toStdString());
    return done;
}

} // namespace

const Command factsCommand{.name = "facts",
                           .operands = "FOLDER",
                           .summary = "Show what holds FOLDER: volume, file system and drive",
                           .options = options,
                           .notes = R"(
Nothing is written anywhere. What the system does not tell reads "--", and is left out of the JSON object.
)",
                           .execute = &execute};

} // namespace examples::host
