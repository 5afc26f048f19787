#include "TarnwickHost/RunFiles.h"

#include "TarnwickHost/CommandLine.h"
#include "TarnwickHost/Output.h"
#include "TarnwickKit/model/runs/JsonReader.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <system_error>

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

std::string tooLarge() {
    return " is larger than a run file can be (" + std::to_string(maxRunFileBytes >> 20) + " MiB)";
}

/// Why readRunFile gave nothing for `path`, to stand behind its name.
std::string whyUnread(const std::string& path) {
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return ": " + std::generic_category().message(errno);
    if (!S_ISREG(facts.st_mode))
        return " is not a regular file";
    if (static_cast<std::uintmax_t>(facts.st_size) > maxRunFileBytes)
        return tooLarge();
    if (access(path.c_str(), R_OK) != 0)
        return ": " + std::generic_category().message(errno);
    return " could not be read";
}

/// What stands on standard input. Fails: absent, and `reason` says why.
std::optional<std::string> readInput(std::string& reason) {
    std::string all;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t length = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (length == 0)
            return all;
        if (length > 0)
            all.append(buffer.data(), static_cast<std::size_t>(length));
        else if (errno != EINTR) {
            reason = ": " + std::generic_category().message(errno);
            return std::nullopt;
        }
        if (all.size() > maxRunFileBytes) {
            reason = tooLarge();
            return std::nullopt;
        }
    }
}

} // namespace

ReadRuns readRuns(std::span<const std::string_view> paths) {
    ReadRuns read;
    for (const std::string_view operand : paths) {
        const std::string path(operand);
        std::string reason;
        const auto content = path == "-" ? readInput(reason) : readRunFile(path);
        try {
            if (content) {
                const auto runs = requireRuns(*content);
                read.runs.insert(read.runs.end(), runs.begin(), runs.end());
                continue;
            }
            if (reason.empty())
                reason = whyUnread(path);
        } catch (const JsonError& error) {
            reason = std::string(" is not a run file: ") + error.what();
        }
        read.isWhole = false;
        complain((path == "-" ? "standard input" : quoted(operand)) + reason);
    }
    return read;
}

} // namespace TarnwickHost
