#pragma once

#include "TarnwickKit/model/runs/HistoryFile.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// The list of past runs, mirrored to one file that other programs may write, too (see HistoryFile): a JSON
/// array of runs, newest first. The file is read when the store is made; what others change in it comes in
/// with each save and each `refresh`.
///
/// Threads: the one that makes it. Fails: silently. What cannot be written stays in memory, and the next save
/// that succeeds carries everything.
class HistoryStore : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t limit = 50;

    /// `directory`: where the file is; absent is the user's data folder. It is made if it is missing. Of a
    /// file that is damaged the runs that can be read are there. Fails: for a user without a folder of their
    /// own the list is kept in memory alone, with a line in the log.
    explicit HistoryStore(const std::optional<std::filesystem::path>& directory = std::nullopt,
                          QObject* parent = nullptr, HistoryFile::Access access = {});

    /// More than `limit` only if the file held more.
    const std::vector<RunRecord>& runs() const { return m_runs; }
    Q_SIGNAL void runsChanged();
    /// Another program has given a run another title. `runsChanged` comes first.
    Q_SIGNAL void renamedElsewhere(const QUuid& id, const std::optional<QString>& title);

    /// The file; absent where none is kept.
    std::optional<std::filesystem::path> url() const {
        return m_file ? std::optional(m_file->path()) : std::nullopt;
    }

    /// Puts a run at the top and drops the last ones beyond `limit`, whatever their dates. Does nothing if a
    /// run with that id is stored.
    void add(const RunRecord& run) { add(std::vector{run}); }
    /// The same for each in turn, with one save for all.
    void add(const std::vector<RunRecord>& runs);
    /// Removes every run with that id; the file is written even if there was none.
    void deleteRun(const QUuid& id);
    /// Absent clears the title. Does nothing, and writes nothing, if no run has that id.
    void setTitle(const std::optional<QString>& title, const QUuid& id);
    /// Forgets all runs; the file then holds an empty array, but for runs that others have added since this
    /// store last looked.
    void clear();
    void save();
    /// Takes in what others have changed. Costs little while there is nothing.
    void refresh();

private:
    void forget(const QUuid& id);
    void announce();
    bool take(std::vector<RunRecord> runs);
    bool write();

    std::optional<HistoryFile> m_file;
    std::vector<RunRecord> m_runs;
    HistoryChanges m_changes;
    std::vector<QUuid> m_renamedElsewhere;
};

} // namespace TarnwickKit::model
