#pragma once

#include "OndelCore/Export.h"

#include <sys/types.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

namespace OndelCore::volumes {

/// A persistent reference to a folder: opaque bytes.
using BookmarkData = std::string;

/// The scope of a bookmark. Linux grants access to users and not to programs, so both have the same effect.
enum class BookmarkOptions { none, withSecurityScope };

/// A bookmark's folder. Stale: the folder is gone or was replaced by another.
struct ResolvedBookmark {
    std::filesystem::path url;
    bool isStale = false;

    bool operator==(const ResolvedBookmark&) const = default;
};

/// Acquires and releases access to a folder. Not needed on Linux.
struct FolderAccess {
    std::function<bool(const std::filesystem::path&)> start = [](const auto&) { return true; };
    std::function<void(const std::filesystem::path&)> stop = [](const auto&) {};
};

/// Questions about access to a folder. Threads: any; the functions keep no state.
class ONDEL_PUBLIC VolumeAccess {
public:
    VolumeAccess() = delete;

    /// Whether a file can be made, written and flushed in `folder`. It is tried with a probe file
    /// (".ondel-writeprobe-" and a UUID), which is removed again, after checking that the volume answers.
    /// Permissions and mount flags are not consulted. Fails: false if any step fails.
    static bool isWritable(const std::filesystem::path& folder);

    /// The same for an open folder. Returns the owner of the probe, who owns all files that this process
    /// makes there: another user on file systems that have no owners or map them. Fails: absent if any step
    /// fails.
    static std::optional<uid_t> ownerOfNewFiles(int folder);

    /// A reference by which the folder is found again. Fails: throws std::system_error if there is no such
    /// folder.
    static BookmarkData bookmark(const std::filesystem::path& folder,
                                 BookmarkOptions options = BookmarkOptions::none);

    /// The folder of a bookmark; a missing one gives a stale bookmark. Fails: throws std::system_error
    /// (std::errc::invalid_argument) if the bytes are no bookmark.
    static ResolvedBookmark resolve(const BookmarkData& data,
                                    BookmarkOptions options = BookmarkOptions::none);

    /// Calls `body` with access to `folder`, and also if access was refused. Access is released only if it
    /// was acquired. Returns the result of `body`. Fails: as `body`.
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
