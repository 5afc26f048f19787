#include "OndelCore/platform/storage/FileTrials.h"

#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>

namespace OndelCore::platform {

namespace {

constexpr std::size_t headBytes = 65536;
constexpr off_t tailAt = 1048576; ///< a hole lies before it

/// A new file in a folder. Owner: the object removes it.
class TrialFile {
public:
    TrialFile(int folder, const char* name)
        : m_folder(folder)
        , m_name(name)
        , m_file(openat(folder, name, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600)) {}
    ~TrialFile() {
        if (m_file)
            unlinkat(m_folder, m_name, 0);
    }
    TrialFile(const TrialFile&) = delete;
    TrialFile& operator=(const TrialFile&) = delete;

    explicit operator bool() const { return static_cast<bool>(m_file); }
    int get() const { return m_file.get(); }

private:
    int m_folder;
    const char* m_name;
    FileDescriptor m_file;
};

/// Writes random bytes, which no file system compresses, and a few bytes behind a hole.
bool writeAroundAHole(int file) {
    std::array<std::byte, headBytes> bytes{};
    fillRandom(bytes.data(), bytes.size());
    return pwrite(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()) &&
           pwrite(file, bytes.data(), 4096, tailAt) == 4096 && fsync(file) == 0;
}

std::optional<bool> isSparse(int file) {
    constexpr std::int64_t blockBytes = 512; // the unit of st_blocks on every file system
    struct stat facts{};
    if (fstat(file, &facts) != 0)
        return std::nullopt;
    const std::int64_t held = facts.st_blocks * blockBytes;
    if (held < static_cast<std::int64_t>(headBytes)) // blocks are not counted, or not yet
        return std::nullopt;
    return held < tailAt / 2;
}

std::optional<bool> canClone(int from, int to) {
    if (ioctl(to, FICLONE, from) == 0)
        return true;
    return errno == EOPNOTSUPP || errno == ENOTTY ? std::optional(false) : std::nullopt;
}

} // namespace

TriedAbilities tryAbilities(int folder) {
    const TrialFile holed(folder, "holed");
    const TrialFile clone(folder, "clone");
    if (!holed || !clone || !writeAroundAHole(holed.get()))
        return {};
    return {.sparseFiles = isSparse(holed.get()), .cloning = canClone(holed.get(), clone.get())};
}

} // namespace OndelCore::platform
