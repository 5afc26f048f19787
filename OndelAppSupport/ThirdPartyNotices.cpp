#include "OndelAppSupport/ThirdPartyNotices.h"

#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <system_error>

namespace OndelAppSupport {

namespace fs = std::filesystem;

std::vector<fs::path> resourceFolders() {
    const fs::path programs = QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
    return {programs / "../share/doc/tarnwick", programs / "../share/tarnwick",
            programs / "../../../resources"}; // build/<preset>/bin
}

std::optional<fs::path> thirdPartyNotices(const std::vector<fs::path>& folders) {
    for (const fs::path& folder : folders) {
        std::error_code error;
        const fs::path file = (folder / "ThirdPartyNotices.txt").lexically_normal();
        if (fs::is_regular_file(file, error))
            return file;
    }
    return std::nullopt;
}

} // namespace OndelAppSupport
