#include "OndelCore/platform/storage/ReadFile.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace OndelCore::platform {

std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most,
                                           std::error_code& error) {
    error.clear();
    // Without O_NONBLOCK, opening a pipe blocks until somebody writes.
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat facts{};
    if (!file || fstat(file.get(), &facts) != 0) {
        error = lastError();
        return std::nullopt;
    }
    const auto size = static_cast<std::size_t>(facts.st_size);
    if (!S_ISREG(facts.st_mode))
        error = std::make_error_code(std::errc::not_supported);
    else if (size > most)
        error = std::make_error_code(std::errc::file_too_large);
    if (error)
        return std::nullopt;

    std::string content(size + 1, '\0'); // one byte more detects a file that grew
    std::size_t length = 0;
    while (length < content.size()) {
        const ssize_t got = read(file.get(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0) {
            error = lastError();
            return std::nullopt;
        }
        if (got == 0)
            break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    if (length != size)
        error = std::make_error_code(std::errc::resource_unavailable_try_again);
    return error ? std::nullopt : std::optional(std::move(content));
}

std::optional<std::string> readRegularFile(const std::filesystem::path& path, std::size_t most) {
    std::error_code ignored;
    return readRegularFile(path, most, ignored);
}

} // namespace OndelCore::platform
