#include "TarnwickHost/RunFiles.h"

#include "TarnwickHost/HostText.h"
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

using namespace TarnwickKit::model;

namespace TarnwickHost {

namespace {

QString mostBytes() { return QString::number(maxRunFileBytes >> 20) + " MiB"; }

/// Why readRunFile gave nothing for `path`.
QString whyUnread(const std::string& path) {
    const QString file = inQuotes(path);
    struct stat facts{};
    if (stat(path.c_str(), &facts) != 0)
        return because(file, errno);
    if (!S_ISREG(facts.st_mode))
        return HostFiles::tr("%1 is not a regular file").arg(file);
    if (static_cast<std::uintmax_t>(facts.st_size) > maxRunFileBytes)
        return HostFiles::tr("%1 is larger than a run file can be (%2)").arg(file, mostBytes());
    if (access(path.c_str(), R_OK) != 0)
        return because(file, errno);
    return HostFiles::tr("%1 could not be read").arg(file);
}

/// What stands on standard input. Fails: absent, and `reason` says why.
std::optional<std::string> readInput(QString& reason) {
    std::string all;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t length = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (length == 0)
            return all;
        if (length > 0)
            all.append(buffer.data(), static_cast<std::size_t>(length));
        else if (errno != EINTR) {
            reason = because(HostFiles::tr("standard input"), errno);
            return std::nullopt;
        }
        if (all.size() > maxRunFileBytes) {
            reason = HostFiles::tr("standard input is larger than a run file can be (%1)").arg(mostBytes());
            return std::nullopt;
        }
    }
}

} // namespace

ReadRuns readRuns(std::span<const std::string_view> paths) {
    ReadRuns read;
    for (const std::string_view operand : paths) {
        const std::string path(operand);
        const bool isInput = path == "-";
        QString reason;
        const auto content = isInput ? readInput(reason) : readRunFile(path);
        try {
            if (content) {
                const auto runs = requireRuns(*content);
                read.runs.insert(read.runs.end(), runs.begin(), runs.end());
                continue;
            }
            if (reason.isEmpty())
                reason = whyUnread(path);
        } catch (const JsonError& error) {
            reason = isInput ? HostFiles::tr("standard input is not a run file: %1").arg(error.what())
                             : HostFiles::tr("%1 is not a run file: %2").arg(inQuotes(path), error.what());
        }
        read.isWhole = false;
        complain(reason);
    }
    return read;
}

} // namespace TarnwickHost
