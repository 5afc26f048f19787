#pragma once

#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QUuid>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace TarnwickKit::model {

/// What one program has changed in its list since it last matched the file.
struct HistoryChanges {
    std::set<QUuid> added;
    std::set<QUuid> deleted;
    std::set<QUuid> renamed;

    bool operator==(const HistoryChanges&) const = default;
};

/// What tests replace.
struct HistoryAccess {
    /// As readRunFile.
    std::function<std::optional<std::string>(const std::filesystem::path&, std::error_code&)> read =
        [](const std::filesystem::path& path, std::error_code& error) { return readRunFile(path, error); };
    std::chrono::milliseconds lockPatience{500};
};

/// The file of a history: a JSON array of runs, newest first. Several programs may write it, and none loses
/// runs to another one's save.
///
/// Writing. A save takes a lock, reads the file again, merges by `id`, and replaces the whole file. It waits
/// for the lock for a limited time and then goes on without it. If another program replaces the file between
/// reading and writing, the save merges again.
///
/// Merging. A run that is missing in the file and was not deleted stays, because the file may be an older
/// copy. The lock's file lists deletions, one per line, so that a program that still holds a deleted run does
/// not bring it back. A run that is in the file, or was added again, is kept whatever that list says. For a
/// run that both have, the file's form counts, except for titles that this program has changed since.
///
/// Damage. A damaged file is read run by run, and kept beside under another name before it is replaced. A
/// file that cannot be read at the moment is neither moved nor written. A symbolic link stays one: the file
/// that it names is written, and the lock and leftovers lie beside that file.
///
/// Threads: any, one at a time.
class HistoryFile {
public:
    using Runs = std::vector<RunRecord>;

    using Access = HistoryAccess;

    HistoryFile(std::filesystem::path path, Access access);

    const std::filesystem::path& path() const { return m_path; }

    /// Removes what killed writers left beside the file.
    void removeLeftovers() const;

    /// `mine` and `changes` merged with the present file: at most `most` runs, unless the file or `mine`
    /// holds more. Absent: there is nothing new, or the file cannot be read at the moment.
    std::optional<Runs> look(const Runs& mine, const HistoryChanges& changes, std::size_t most);

    /// The same, and writes it even if nothing is new. Fails: absent, and the file is unchanged.
    std::optional<Runs> update(const Runs& mine, const HistoryChanges& changes, std::size_t most);

private:
    struct Fingerprint {
        std::size_t size = 0;
        std::size_t hash = 0;

        bool operator==(const Fingerprint&) const = default;
    };
    struct Content;

    static std::optional<Fingerprint> fingerprintOf(const std::optional<std::string>& text);
    std::optional<Content> content(const std::filesystem::path& file) const;
    std::optional<Fingerprint> fingerprint(const std::filesystem::path& file) const;

    std::filesystem::path m_path;
    Access m_access;
    /// The content that the program's list already includes.
    std::optional<Fingerprint> m_known;
};

} // namespace TarnwickKit::model
