#pragma once

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace OndelCore::volumes {

/// What keeps the way to a folder beyond this run of the program: opaque bytes.
using BookmarkData = std::string;

/// For whom a bookmark is made or resolved. This system grants folders to the user and not to single
/// programs, so that both mean the same here.
enum class BookmarkOptions { none, withSecurityScope };

/// A bookmark's folder. Stale: nothing is there any more, or another folder than the one that was marked.
struct ResolvedBookmark {
    std::filesystem::path url;
    bool isStale = false;

    bool operator==(const ResolvedBookmark&) const = default;
};

/// How the right to use a folder is taken and given back. Here the user's rights hold without either.
struct FolderAccess {
    std::function<bool(const std::filesystem::path&)> start = [](const auto&) { return true; };
    std::function<void(const std::filesystem::path&)> stop = [](const auto&) {};
};

/// Questions about the right to use a folder.
/// Threads: any; the functions keep no state.
class VolumeAccess {
public:
    VolumeAccess() = delete;

    /// Whether a file can really be made, written and flushed in `folder`, proved by doing so: permissions
    /// and mount flags are not asked, only whether the volume answers at all. The probe (".ondel-writeprobe-"
    /// and a UUID) is removed again. Fails: any failing step means "no".
    static bool isWritable(const std::filesystem::path& folder);

    /// The same of an open folder. Answers who owns the probe, and so whatever this process makes there: on
    /// file systems that keep no owners, or change them, not this user. Fails: absent means "no".
    static std::optional<uid_t> ownerOfNewFiles(int folder);

    /// Fails: throws std::system_error if there is no such folder.
    static BookmarkData bookmark(const std::filesystem::path& folder,
                                 BookmarkOptions options = BookmarkOptions::none);

    /// Fails: throws std::system_error (std::errc::invalid_argument) for bytes that are no bookmark. A
    /// folder that is gone is no failure but a stale bookmark.
    static ResolvedBookmark resolve(const BookmarkData& data,
                                    BookmarkOptions options = BookmarkOptions::none);

    /// Calls `body` between taking and giving back the right to use `folder`, also when the right was not
    /// given; gives it back if and only if it was. Answers what `body` does. Fails: as `body`.
    template <typename Body>
    static std::invoke_result_t<Body> withAccess(const std::filesystem::path& folder, Body&& body,
                                                 const FolderAccess& access = {}) {
        struct Stop {
            const FolderAccess& access;
            const std::filesystem::path& folder;
            bool isStarted;
            ~Stop() {
                if (isStarted)
                    access.stop(folder);
            }
        };
        const Stop stopAtEnd{access, folder, access.start(folder)};
        return std::forward<Body>(body)();
    }
};

} // namespace OndelCore::volumes
