#include "OndelCore/logging/LogFile.h"

#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

namespace OndelCore::logging {

namespace fs = std::filesystem;
using platform::FileDescriptor;

namespace {

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Written to another file and renamed, so that it is never seen incomplete.
void makeLogFile(const fs::path& file, std::string_view lines) {
    makeLogFolder(file.parent_path());
    std::string beside = file.native() + ".XXXXXX";
    const FileDescriptor descriptor(mkostemp(beside.data(), O_CLOEXEC));
    if (!descriptor)
        return;
    if (!writeAll(descriptor.get(), lines) || rename(beside.c_str(), file.c_str()) != 0)
        unlink(beside.c_str());
}

} // namespace

void makeLogFolder(const fs::path& folder) {
    constexpr mode_t ownerOnly = 0700;
    if (mkdir(folder.c_str(), ownerOnly) == 0 || errno != ENOENT || !folder.has_relative_path())
        return;
    makeLogFolder(folder.parent_path());
    mkdir(folder.c_str(), ownerOnly);
}

bool rotateIfNeeded(const fs::path& file) {
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(file, failed);
    if (failed || size <= static_cast<std::uintmax_t>(rotationLimitBytes))
        return true;
    const fs::path old = file.parent_path() / "ondel.1.log";
    fs::remove(old, failed);
    fs::rename(file, old, failed);
    if (failed)
        fs::resize_file(file, 0, failed);
    return !failed;
}

void appendToLogFile(const fs::path& file, std::string_view lines) {
    // Without O_NONBLOCK, opening a pipe in the file's place would block for ever.
    const FileDescriptor descriptor(open(file.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK));
    if (!descriptor) {
        makeLogFile(file, lines);
        return;
    }
    const off_t before = lseek(descriptor.get(), 0, SEEK_END);
    if (!writeAll(descriptor.get(), lines) && before >= 0 && ftruncate(descriptor.get(), before) != 0)
        return; // part of the batch stays
}

} // namespace OndelCore::logging
