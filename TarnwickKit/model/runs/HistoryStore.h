#pragma once

#include "OndelCore/Export.h"
#include "TarnwickKit/model/runs/RunRecord.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

struct HistoryAccess;

/// The list of past runs, newest first, mirrored to one file that other programs may also write (see
/// HistoryFile). The file is read when the store is made. Each save and each `refresh` takes in what others
/// have changed.
///
/// Threads: the one that makes it. Fails: silently. Runs that cannot be written stay in memory until a save
/// succeeds.
class ONDEL_PUBLIC HistoryStore : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t limit = 50;

    /// `directory`: the file's folder; absent is the user's data folder. It is made if it is missing. Of a
    /// damaged file the readable runs are taken. Fails: for a user without any folder the list is kept in
    /// memory only, with a line in the log.
    explicit HistoryStore(const std::optional<std::filesystem::path>& directory = std::nullopt,
                          QObject* parent = nullptr);
    /// For the tests of this project.
    HistoryStore(const std::optional<std::filesystem::path>& directory, QObject* parent,
                 const HistoryAccess& access);
    ~HistoryStore() override;

    /// More than `limit` only if the file held more.
    const std::vector<RunRecord>& runs() const { return m_runs; }
    Q_SIGNAL void runsChanged();
    /// Another program has changed a run's title. `runsChanged` comes first.
    Q_SIGNAL void renamedElsewhere(const QUuid& id, const std::optional<QString>& title);

    /// The file; absent if the list is kept in memory only.
    std::optional<std::filesystem::path> url() const;

    /// Whether the file holds all that was changed here.
    bool isSaved() const;

    /// Puts a run at the top and drops the last ones beyond `limit`, whatever their dates. Does nothing if a
    /// run with that id is stored.
    void add(const RunRecord& run) { add(std::vector{run}); }
    /// The same for each in turn, with one save for all.
    void add(const std::vector<RunRecord>& runs);
    /// Removes every run with that id; the file is written even if there was none.
    void deleteRun(const QUuid& id);
    /// Absent clears the title. Does nothing, and writes nothing, if no run has that id.
    void setTitle(const std::optional<QString>& title, const QUuid& id);
    /// Deletes all runs. The file then holds an empty array, except for runs that others have added since
    /// this store last read it.
    void clear();
    /// A run, and the one behind it in the list; null behind the last.
    struct Place {
        RunRecord run;
        QUuid next;
    };
    /// The stored run with that id; absent if there is none.
    std::optional<Place> placeOf(const QUuid& id) const;
    /// Brings back deleted runs, in the order of their deletion, with one save. A run that is stored stays as
    /// it is. More than `limit` runs are kept if there were more.
    void restore(const std::vector<Place>& deleted);
    /// Writes what could not be written so far, and takes in what others have changed.
    void save();
    /// Takes in what others have changed. Cheap if there is nothing.
    void refresh();

private:
    void forget(const QUuid& id);
    void announce();
    bool take(std::vector<RunRecord> runs);
    bool write(std::size_t most = limit);

    struct Mirror;

    std::vector<RunRecord> m_runs;
    std::unique_ptr<Mirror> m_mirror;
};

} // namespace TarnwickKit::model
