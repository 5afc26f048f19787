#include "OndelCore/platform/volumes/linux/LetterCase.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <string_view>

namespace OndelCore::platform {

namespace {

constexpr int mostEntries = 20000; // read from one folder
constexpr int mostLookups = 8;
constexpr int mostFolders = 40;

constexpr bool isLower(char letter) { return letter >= 'a' && letter <= 'z'; }
constexpr bool isUpper(char letter) { return letter >= 'A' && letter <= 'Z'; }

/// A file name without heap memory.
class Name {
public:
    explicit Name(const char* text) {
        const std::size_t length = strnlen(text, m_text.size() - 1);
        std::memcpy(m_text.data(), text, length);
    }
    /// ASCII letters only: file systems differ in their rules for others.
    Name swapped() const {
        Name other = *this;
        for (char& letter : other.m_text)
            if (isLower(letter) || isUpper(letter))
                letter = static_cast<char>(letter ^ 0x20);
        return other;
    }
    bool has(bool (*isOfCase)(char)) const {
        for (const char letter : m_text)
            if (isOfCase(letter))
                return true;
        return false;
    }
    const char* text() const { return m_text.data(); }
    bool operator==(const Name&) const = default;

private:
    std::array<char, 256> m_text{};
};

/// Calls `see` for each entry except "." and ".." until it returns false. Fails: false, the folder was not
/// read completely.
template <typename See>
bool forEachEntry(int folder, See see) {
    if (lseek(folder, 0, SEEK_SET) != 0)
        return false;
    alignas(dirent64) std::array<char, 16384> buffer;
    int left = mostEntries;
    for (;;) {
        const ssize_t filled = getdents64(folder, buffer.data(), buffer.size());
        if (filled <= 0)
            return filled == 0;
        for (std::size_t at = 0; at < static_cast<std::size_t>(filled);) {
            const auto* const entry = reinterpret_cast<const dirent64*>(&buffer[at]);
            at += entry->d_reclen;
            const std::string_view name(entry->d_name);
            if (name == "." || name == "..")
                continue;
            if (left-- == 0 || !see(entry->d_name))
                return false;
        }
    }
}

/// The case rule after a successful look-up of the swapped name. If both are listed they are two names.
LetterCase caseOfFound(int folder, const Name& name) {
    const Name other = name.swapped();
    bool isListed = false;
    bool hasMixedName = false;
    const bool isComplete = forEachEntry(folder, [&](const char* text) {
        const Name entry(text);
        isListed |= entry == other;
        hasMixedName |= entry.has(isLower) && entry.has(isUpper);
        return !isListed;
    });
    if (isListed)
        return LetterCase::sensitive;
    if (!isComplete)
        return LetterCase::unknown;
    return hasMixedName ? LetterCase::preserving : LetterCase::ignored;
}

FolderNames namesInItself(int folder) {
    FolderNames names;
    auto& found = names.letterCase;
    int lookups = 0;
    forEachEntry(folder, [&](const char* text) {
        const Name name(text);
        names.hasCapitals |= name.has(isUpper);
        if (!name.has(isLower) && !name.has(isUpper))
            return true;
        struct stat ignored{};
        if (found != LetterCase::unknown)
            return !names.hasCapitals && ++lookups < mostLookups;
        if (fstatat(folder, name.swapped().text(), &ignored, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) == 0)
            found = caseOfFound(folder, name);
        else if (errno == ENOENT &&
                 fstatat(folder, text, &ignored, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT) == 0)
            found = LetterCase::sensitive; // the file itself still exists
        const bool isDone =
            found != LetterCase::unknown && (names.hasCapitals || found != LetterCase::sensitive);
        return !isDone && ++lookups < mostLookups;
    });
    return names;
}

std::uint64_t mountOfFolder(int folder) {
    struct statx facts{};
    const int found = statx(folder, "", AT_EMPTY_PATH | AT_STATX_DONT_SYNC, STATX_MNT_ID, &facts);
    return found == 0 && (facts.stx_mask & STATX_MNT_ID) ? facts.stx_mnt_id : 0;
}

/// The parent folder on the same mount; -1 at the mount's root. Closes `folder`.
int replacedByParent(int folder) {
    const int above = openat(folder, "..", O_PATH | O_DIRECTORY | O_CLOEXEC); // accesses no other file system
    struct stat here{};
    struct stat there{};
    const bool isInside = above >= 0 && mountOfFolder(above) == mountOfFolder(folder) &&
                          fstat(folder, &here) == 0 && fstat(above, &there) == 0 &&
                          here.st_ino != there.st_ino;
    const int parent = isInside ? openat(above, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK) : -1;
    close(above);
    close(folder);
    return parent;
}

} // namespace

FolderNames letterCaseNames(int folder) {
    FolderNames found = namesInItself(folder);
    const auto isOpen = [&found] { return found.letterCase == LetterCase::unknown; };
    int current = isOpen() && mountOfFolder(folder) != 0 ? dup(folder) : -1;
    for (int step = 0; current >= 0 && isOpen() && step < mostFolders; ++step) {
        current = replacedByParent(current);
        if (current >= 0)
            found = namesInItself(current);
    }
    if (current >= 0)
        close(current);
    return found;
}

} // namespace OndelCore::platform
