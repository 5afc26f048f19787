#include "OndelCore/health/DiskHealth.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickHost/Command.h"
#include "TarnwickHost/Folder.h"
#include "TarnwickHost/Output.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/session/DriveInfo.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <algorithm>

using OndelCore::health::DiskHealth;
using OndelCore::volumes::Location;
using OndelCore::volumes::VolumeInfo;
using TarnwickKit::model::DriveInfo;
using TarnwickKit::model::harmless;
using TarnwickKit::model::SMARTReport;

namespace TarnwickHost {

namespace {

std::optional<QString> driveName(const std::filesystem::path& folder) {
    const std::optional<VolumeInfo> volume = VolumeInfo::load(Location::local(folder));
    if (!volume || !volume->volumeURL)
        return std::nullopt;
    return DriveInfo::identity(*volume->volumeURL).model;
}

int executeSmartReport(const CommandLine& line) {
    const std::filesystem::path folder = folderIn(line);
    const DiskHealth::Reading reading = DiskHealth::readInDetail(folder);
    if (!reading.smart || !reading.smart->isSupported()) {
        complain("no S.M.A.R.T. figures: " + reading.source);
        return failed;
    }
    const QString text = SMARTReport::text(*reading.smart, driveName(folder), QDateTime::currentDateTime());
    QStringList lines = text.split('\n');
    std::ranges::transform(lines, lines.begin(), harmless); // a drive's name may hold anything
    print(lines.join('\n').toStdString());
    return done;
}

} // namespace

const Command smartReportCommand{.name = "smart-report",
                                 .operands = "FOLDER",
                                 .summary = "Print the health of the drive that holds FOLDER",
                                 .options = {},
                                 .notes = R"(
The drive is only looked at: a sleeping one is not woken and nothing is switched on in it. Where its health comes
from, or why there is none, is told by "facts".
)",
                                 .execute = &executeSmartReport};

} // namespace TarnwickHost
