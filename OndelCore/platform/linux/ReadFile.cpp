#include "OndelCore/platform/ReadFile.h"

#include "OndelCore/platform/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace OndelCore::platform {

std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most) {
    // Without O_NONBLOCK a pipe would hold the caller here until somebody writes.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat facts {};
    if (!file || fstat(file.get(), &facts) != 0 || !S_ISREG(facts.st_mode))
        return std::nullopt;
    const auto size = static_cast<std::size_t>(facts.st_size);
    if (size > most)
        return std::nullopt;

    std::string content(size + 1, '\0'); // room for the byte that a growing file has more
    std::size_t length = 0;
    while (length < content.size()) {
        const ssize_t got = read(file.get(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return length == size ? std::optional(std::move(content)) : std::nullopt;
}

} // namespace OndelCore::platform
