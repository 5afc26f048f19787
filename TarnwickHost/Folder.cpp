#include "TarnwickHost/Folder.h"

#include "OndelCore/platform/volumes/PathFacts.h"

#include <stdexcept>
#include <string>
#include <system_error>

namespace TarnwickHost {

FolderLook look(std::string_view folder) {
    const auto facts = OndelCore::platform::pathFacts(folder);
    if (!facts)
        throw std::runtime_error(quoted(folder) + " does not answer");
    return {.error = facts->error, .isFolder = facts->isFolder};
}

std::filesystem::path folderIn(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FOLDER is missing");
    if (line.operands().size() > 1)
        throw UsageError("one FOLDER at a time");
    const std::string_view folder = line.operands().front();
    if (const int error = look(folder).error; error != 0)
        throw UsageError(quoted(folder) + ": " + std::generic_category().message(error));
    return folder;
}

} // namespace TarnwickHost
