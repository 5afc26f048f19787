#pragma once

#include "TarnwickKit/model/RunRecord.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUuid>

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// The list of past runs, mirrored to one file: a JSON array of runs, newest first. The file is read once,
/// when the store is made; of several programs that write it the last one wins.
///
/// Threads: the one that makes it. Fails: silently. What cannot be written stays in memory, and the next save
/// that succeeds carries everything.
class HistoryStore : public QObject {
    Q_OBJECT

public:
    static constexpr std::size_t limit = 50;

    /// `directory`: where the file is; absent is the user's data folder. It is made if it is missing. A file
    /// that cannot be read gives an empty list, and is kept beside before the first save would overwrite it.
    explicit HistoryStore(std::optional<std::filesystem::path> directory = std::nullopt,
                          QObject* parent = nullptr);

    /// More than `limit` only if the file held more.
    const std::vector<RunRecord>& runs() const { return m_runs; }
    Q_SIGNAL void runsChanged();

    const std::filesystem::path& url() const { return m_url; }

    /// Puts a run at the top and drops the last ones beyond `limit`, whatever their dates. Does nothing if a
    /// run with that id is stored.
    void add(const RunRecord& run);
    /// Removes every run with that id; the file is written even if there was none.
    void deleteRun(const QUuid& id);
    /// Absent clears the title. Does nothing, and writes nothing, if no run has that id.
    void setTitle(const std::optional<QString>& title, const QUuid& id);
    /// Forgets all runs; the file then holds an empty array.
    void clear();
    void save();

    /// While it lives, saving waits for its end: many changes at once then cost one write.
    class OneSave {
    public:
        explicit OneSave(HistoryStore& store)
            : m_store(store) {
            m_store.m_holdsSave = true;
        }
        ~OneSave();
        OneSave(const OneSave&) = delete;
        OneSave& operator=(const OneSave&) = delete;

    private:
        HistoryStore& m_store;
    };

private:
    void load();
    QByteArray encoded() const;
    bool keepUnreadableFile() const;

    std::filesystem::path m_url;
    std::vector<RunRecord> m_runs;
    bool m_fileIsUnreadable = false;
    bool m_holdsSave = false;
    bool m_owesSave = false;
};

} // namespace TarnwickKit::model
