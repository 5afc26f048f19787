#include "TarnwickKit/model/RunFile.h"

#include "OndelCore/platform/ReadFile.h"
#include "TarnwickKit/model/RunRecordJson.h"

namespace TarnwickKit::model {

std::optional<std::string> readRunFile(const std::filesystem::path& path) {
    return OndelCore::platform::readRegularFile(path, maxRunFileBytes);
}

} // namespace TarnwickKit::model
