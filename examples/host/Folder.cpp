#include "examples/host/Folder.h"

#include <sys/stat.h>

#include <cerrno>
#include <system_error>

namespace examples::host {

std::filesystem::path folderIn(const CommandLine& line) {
    if (line.operands().empty())
        throw UsageError("a FOLDER is missing");
    if (line.operands().size() > 1)
        throw UsageError("one FOLDER at a time");
    std::filesystem::path folder = line.operands().front();
    struct stat facts {};
    if (stat(folder.c_str(), &facts) != 0)
        throw UsageError(quoted(line.operands().front()) + ": " + std::generic_category().message(errno));
    return folder;
}

} // namespace examples::host
