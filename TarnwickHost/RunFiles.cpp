#include "TarnwickHost/RunFiles.h"

#include "TarnwickHost/CommandLine.h"
#include "TarnwickHost/Output.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunRecordJson.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

/// Why readRunFile gave nothing for `path`, to stand behind its name.
std::string whyUnread(const std::string& path) {
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return ": " + std::generic_category().message(errno);
    if (!S_ISREG(facts.st_mode))
        return " is not a regular file";
    if (static_cast<std::uintmax_t>(facts.st_size) > maxRunFileBytes)
        return " is larger than a run file can be (" + std::to_string(maxRunFileBytes >> 20) + " MiB)";
    if (access(path.c_str(), R_OK) != 0)
        return ": " + std::generic_category().message(errno);
    return " could not be read";
}

} // namespace

std::vector<RunRecord> readRuns(std::span<const std::string_view> paths) {
    std::vector<RunRecord> runs;
    for (const std::string_view operand : paths) {
        const std::string path(operand);
        const auto content = readRunFile(path);
        const auto run = content ? decodeRun(*content) : std::nullopt;
        if (run)
            runs.push_back(*run);
        else
            complain(quoted(operand) + (content ? " is not a run file" : whyUnread(path)));
    }
    return runs;
}

} // namespace TarnwickHost
