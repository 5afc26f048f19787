#include "OndelCore/volumes/VolumeAccess.h"

#include <sys/stat.h>

#include <cerrno>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>

namespace OndelCore::volumes {

namespace {

// A line with the format, a line with the folder's device and inode numbers in decimal, then the bytes of the
// path.
constexpr std::string_view form = "ondel-bookmark-1\n";

struct FolderIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    bool operator==(const FolderIdentity&) const = default;
};

/// Fails: absent with errno set.
std::optional<FolderIdentity> identityOf(const std::filesystem::path& folder) {
    struct stat facts{};
    if (stat(folder.c_str(), &facts) != 0)
        return std::nullopt;
    if (!S_ISDIR(facts.st_mode)) {
        errno = ENOTDIR;
        return std::nullopt;
    }
    return FolderIdentity{facts.st_dev, facts.st_ino};
}

/// Removes a decimal number and the character after it from the front.
std::optional<std::uint64_t> takeNumber(std::string_view& text, char behind) {
    std::uint64_t number = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failed != std::errc{} || end == text.data() + text.size() || *end != behind)
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    return number;
}

} // namespace

BookmarkData VolumeAccess::bookmark(const std::filesystem::path& folder, BookmarkOptions) {
    const auto identity = identityOf(folder);
    if (!identity)
        throw std::system_error(errno, std::generic_category(), folder.string());
    return std::string(form) + std::to_string(identity->device) + ' ' + std::to_string(identity->inode) +
           '\n' + std::filesystem::absolute(folder).string();
}

ResolvedBookmark VolumeAccess::resolve(const BookmarkData& data, BookmarkOptions) {
    std::string_view rest = data;
    const bool hasForm = rest.starts_with(form);
    rest.remove_prefix(hasForm ? form.size() : 0);
    const auto device = hasForm ? takeNumber(rest, ' ') : std::nullopt;
    const auto inode = device ? takeNumber(rest, '\n') : std::nullopt;
    if (!inode || !rest.starts_with('/') || rest.find('\0') != std::string_view::npos)
        throw std::system_error(std::make_error_code(std::errc::invalid_argument), "bookmark");
    const std::filesystem::path folder(rest);
    return {folder, identityOf(folder) != FolderIdentity{*device, *inode}};
}

} // namespace OndelCore::volumes
