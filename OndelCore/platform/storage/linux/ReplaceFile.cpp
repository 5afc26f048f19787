#include "OndelCore/platform/storage/ReplaceFile.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <string>

namespace OndelCore::platform {

namespace fs = std::filesystem;

namespace {

constexpr const char* temporaryPrefix = ".ondel-new-";

/// How a new file is made.
struct Manner {
    mode_t mode;
    Lasting lasting;
};

std::error_code flush(int file, Lasting lasting) {
    return lasting == Lasting::untilPowerLoss || fsync(file) == 0 ? std::error_code() : lastError();
}

std::error_code writeAndFlush(int file, std::string_view content, Lasting lasting) {
    while (!content.empty()) {
        const ssize_t written = write(file, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return lastError();
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return flush(file, lasting);
}

/// Writes a file that is unnamed until it is complete, so that a killed process leaves nothing. Fails: also
/// if the file system does not support it or /proc is missing.
std::error_code writeNameless(int folder, const std::string& name, std::string_view content, Manner manner) {
    const FileDescriptor file(openat(folder, ".", O_TMPFILE | O_WRONLY | O_CLOEXEC, manner.mode));
    if (!file)
        return lastError();
    if (const std::error_code error = writeAndFlush(file.get(), content, manner.lasting))
        return error;
    const std::string self = "/proc/self/fd/" + std::to_string(file.get());
    return linkat(AT_FDCWD, self.c_str(), folder, name.c_str(), AT_SYMLINK_FOLLOW) == 0 ? std::error_code()
                                                                                        : lastError();
}

std::error_code writeNamed(int folder, const std::string& name, std::string_view content, Manner manner) {
    const FileDescriptor file(
        openat(folder, name.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, manner.mode));
    return file ? writeAndFlush(file.get(), content, manner.lasting) : lastError();
}

} // namespace

std::error_code replaceFile(const fs::path& path, std::string_view content, fs::perms permissions,
                            Lasting lasting, const std::function<bool()>& isStillWanted) {
    const fs::path parent = path.has_parent_path() ? path.parent_path() : fs::path(".");
    const FileDescriptor folder(open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return lastError();
    const Manner manner{static_cast<mode_t>(permissions), lasting};
    const std::string name = path.filename().string();
    const std::string temporary = temporaryPrefix + newUuid();
    std::error_code error;
    if (writeNameless(folder.get(), temporary, content, manner))
        error = writeNamed(folder.get(), temporary, content, manner);
    if (!error && isStillWanted && !isStillWanted())
        error = std::make_error_code(std::errc::operation_canceled);
    if (!error && renameat(folder.get(), temporary.c_str(), folder.get(), name.c_str()) != 0)
        error = lastError();
    if (error) {
        unlinkat(folder.get(), temporary.c_str(), 0);
        return error;
    }
    // The new name is durable only after its folder is flushed. The file is replaced even if this fails.
    flush(folder.get(), lasting);
    return {};
}

void removeReplacementLeftovers(const fs::path& folder) {
    const auto oldest = fs::file_time_type::clock::now() - std::chrono::minutes(1);
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; entry != end; entry.increment(ignored)) {
        std::error_code unknown;
        if (entry->path().filename().native().starts_with(temporaryPrefix) &&
            entry->last_write_time(unknown) < oldest && !unknown)
            fs::remove(entry->path(), unknown);
    }
}

} // namespace OndelCore::platform
