#pragma once

#include "TarnwickKit/model/runs/RunRecord.h"

#include <QString>
#include <QStringList>

#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace TarnwickKit::model {
class HistoryFile;
}

namespace TarnwickSearch {

/// What a desktop shows of a run.
struct RunLines {
    QString title;
    QString description; ///< date and figures
};

/// The stored runs, to be searched by the words that a person types. Reads the history's file when it has
/// changed, and never writes it. Threads: one.
class RunSearch {
public:
    /// `history`: the file; absent is the user's.
    explicit RunSearch(const std::optional<std::filesystem::path>& history = std::nullopt);
    ~RunSearch();
    RunSearch(const RunSearch&) = delete;
    RunSearch& operator=(const RunSearch&) = delete;

    /// Of longer words, and of further ones, nothing is known: there are no runs for them.
    static constexpr qsizetype longestTerm = 200;
    static constexpr qsizetype mostTerms = 20;

    /// The ids of the runs whose title, volume or drive holds each word, newest first. Case and accents make
    /// no difference. Without a word that has a visible character there are none.
    QStringList idsOf(const QStringList& terms);
    /// Absent: there is no such run any more.
    std::optional<RunLines> linesOf(const QString& id);

private:
    void refresh();

    std::unique_ptr<TarnwickKit::model::HistoryFile> m_file;
    std::vector<TarnwickKit::model::RunRecord> m_runs;
};

} // namespace TarnwickSearch
