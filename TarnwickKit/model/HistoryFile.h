#pragma once

#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecord.h"

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

/// What one program changed in its list of runs since it last agreed with the file.
struct HistoryChanges {
    std::set<QUuid> added;
    std::set<QUuid> deleted;
    std::set<QUuid> renamed;
};

/// The file of a history that several programs write, windows of several sessions among them: a JSON array of
/// runs, newest first. Nobody's runs are lost to another writer:
///
/// - A change is a lock, a new look at the file, a merge by `id`, and an exchange of the whole file. The lock
/// is
///   waited for only so long; an exchange of the file that happens all the same is noticed, and the merge
///   made again.
/// - A run that is missing in the file and was not deleted stays: the file may be an older copy. Deletions
/// stand
///   in the lock's file, a line each, so that a program that still holds a deleted run does not bring it
///   back; a run that is in the file, or added anew, is there whatever that list says.
/// - Of a run that both have the file's form counts, but for titles that this program has changed since.
///
/// A file that is damaged is read run by run, and kept beside under another name before it is exchanged. One
/// that cannot be read at the moment is neither moved nor written. A symbolic link stays one: the file that
/// it names is written, and lock and leftovers lie beside that.
///
/// Threads: any, one at a time.
class HistoryFile {
public:
    using Runs = std::vector<RunRecord>;

    /// What tests bend.
    struct Access {
        /// As readRunFile.
        std::function<std::optional<std::string>(const std::filesystem::path&, std::error_code&)> read =
            [](const std::filesystem::path& path, std::error_code& error) {
                return readRunFile(path, error);
            };
        std::chrono::milliseconds lockPatience{500};
    };

    HistoryFile(std::filesystem::path path, Access access);

    const std::filesystem::path& path() const { return m_path; }

    /// Removes what killed writers left beside the file.
    void removeLeftovers() const;

    /// `mine` and `changes` merged with the file as it is now, at most `most` of it unless one of both holds
    /// more. Absent: there is nothing new, or the file cannot be read at the moment.
    std::optional<Runs> look(const Runs& mine, const HistoryChanges& changes, std::size_t most);

    /// The same, and writes it, also where there is nothing new. Fails: absent, and the file is as it was.
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
    /// Of the content that the program's list already holds.
    std::optional<Fingerprint> m_known;
};

} // namespace TarnwickKit::model
