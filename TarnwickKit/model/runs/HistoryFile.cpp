#include "TarnwickKit/model/runs/HistoryFile.h"

#include "OndelCore/platform/storage/FileLock.h"
#include "OndelCore/platform/storage/ReadFile.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/ListFile.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFields.h"

#include <QByteArray>

#include <algorithm>
#include <fstream>
#include <string_view>
#include <utility>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

using OndelCore::platform::FileLock;
using Runs = HistoryFile::Runs;

namespace {

constexpr const char* unreadablePrefix = "history.unreadable-";

// --- Deletions

/// The list of deleted ids in the lock's file. The last line of an id counts: '-' means deleted, '+' added
/// again. Malformed lines are skipped.
class Deletions {
public:
    explicit Deletions(fs::path file)
        : m_file(std::move(file)) {
        const auto text = OndelCore::platform::readRegularFile(m_file, mostBytes);
        m_exists = text.has_value();
        m_size = text ? text->size() : 0;
        for (std::string_view rest = text ? *text : std::string_view(); rest.size() >= lineLength;) {
            const std::size_t end = rest.find('\n');
            takeLine(rest.substr(0, end));
            rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        }
    }

    const std::set<QUuid>& ids() const { return m_ids; }

    /// Fails: silently.
    void note(const std::set<QUuid>& deleted, const Runs& present) {
        std::string lines;
        for (const QUuid& id : deleted)
            if (std::ranges::find(present, id, &RunRecord::id) == present.end())
                lines += line('-', id);
        for (const RunRecord& run : present)
            if (m_ids.contains(run.id))
                lines += line('+', run.id);
        if (lines.empty() || !m_exists)
            return;
        if (m_size < usualBytes)
            std::ofstream(m_file, std::ios::app | std::ios::binary) << lines;
        else
            std::ofstream(m_file, std::ios::trunc | std::ios::binary) << newestLines() << lines;
    }

private:
    static constexpr std::size_t lineLength = 38; // a sign, an id and the line's end
    static constexpr std::size_t usualBytes = 1000 * lineLength;
    static constexpr std::size_t mostBytes = 10 * usualBytes;

    static std::string line(char sign, const QUuid& id) {
        return sign + id.toString(QUuid::WithoutBraces).toStdString() + '\n';
    }
    void takeLine(std::string_view text) {
        const QUuid id =
            text.size() == lineLength - 1 ? QUuid::fromString(QString::fromLatin1(text.substr(1))) : QUuid();
        if (id.isNull())
            return;
        if (text.front() == '-')
            m_ids.insert(id);
        else
            m_ids.erase(id);
    }
    /// Drops the oldest deletions. A program that still holds such a run has not saved for hundreds of
    /// deletions.
    std::string newestLines() const {
        const std::string text = OndelCore::platform::readRegularFile(m_file, mostBytes).value_or("");
        const std::size_t begin = text.find('\n', text.size() - std::min(text.size(), usualBytes / 2));
        return begin == std::string::npos ? std::string() : text.substr(begin + 1);
    }

    fs::path m_file;
    bool m_exists = false;
    std::size_t m_size = 0;
    std::set<QUuid> m_ids;
};

// --- Merging

/// The file's list with the runs of `mine` that it lacks. Each is inserted behind the run that it follows in
/// `mine`.
Runs merged(Runs runs, const Runs& mine, const HistoryChanges& changes,
            const std::set<QUuid>& deletedElsewhere) {
    std::erase_if(runs, [&](const RunRecord& run) { return changes.deleted.contains(run.id); });
    std::size_t place = 0;
    for (const RunRecord& run : mine) {
        const auto found = std::ranges::find(runs, run.id, &RunRecord::id);
        if (found != runs.end()) {
            if (changes.renamed.contains(run.id))
                found->customTitle = run.customTitle;
            place = static_cast<std::size_t>(found - runs.begin()) + 1;
        } else if (!deletedElsewhere.contains(run.id) || changes.added.contains(run.id)) {
            runs.insert(runs.begin() + static_cast<std::ptrdiff_t>(place++), run);
        }
    }
    return runs;
}

// --- Writing

/// The least number of bytes in the JSON of a field.
std::size_t leastLength(const QString& text) { return static_cast<std::size_t>(text.size()); }
std::size_t leastLength(const std::vector<RunSample>& samples) {
    return samples.size() * std::string_view(R"({"t":0,"v":0})").size();
}
std::size_t leastLength(const std::optional<QString>& text) { return text ? leastLength(*text) : 0; }
std::size_t leastLength(const auto&) { return 0; }

std::size_t leastLength(const RunRecord& run) {
    std::size_t sum = 0;
    visitFields(run, [&](std::string_view, const auto& field) { sum += leastLength(field); });
    return sum;
}

/// The JSON of a run, if it has at most `most` bytes. Far larger runs are rejected without being encoded.
std::optional<QByteArray> encodedWithin(std::size_t most, const RunRecord& run) {
    if (leastLength(run) > most)
        return std::nullopt;
    auto json = encodeRun(run);
    return json && static_cast<std::size_t>(json->size()) <= most ? json : std::nullopt;
}

/// A JSON array with `form` of each run. Fails: absent if it is too long for the file.
template <typename Form>
std::optional<QByteArray> arrayOf(const Runs& runs, Form form) {
    JsonWriter json;
    json.beginArray();
    for (const RunRecord& run : runs) {
        if (const std::optional<QByteArray> text = form(run))
            json.raw(*text);
        if (static_cast<std::size_t>(json.json().size()) >= maxRunFileBytes)
            return std::nullopt;
    }
    json.endArray();
    return json.json();
}

/// The file never grows beyond the size that can be read. A run without a JSON form is left out. If all runs
/// together are too large, those above an even share of the file are written with thinned curves, and those
/// whose texts alone exceed it are left out.
std::string encoded(const Runs& runs) {
    if (const auto all = arrayOf(runs, encodeRun))
        return all->toStdString();
    const std::size_t share = (maxRunFileBytes - 2) / runs.size() - 1; // without brackets and a comma
    return arrayOf(runs,
                   [share](const RunRecord& run) {
                       auto full = encodedWithin(share, run);
                       return full ? full : encodedWithin(share, run.withThinnedCurves());
                   })
        .value()
        .toStdString();
}

} // namespace

/// What was read from the file's path.
struct HistoryFile::Content {
    Runs runs;
    std::optional<Fingerprint> fingerprint; ///< absent: there is no readable file
    bool isDamaged = false;
};

HistoryFile::HistoryFile(fs::path path, Access access)
    : m_path(std::move(path))
    , m_access(std::move(access)) {}

std::optional<HistoryFile::Fingerprint> HistoryFile::fingerprintOf(const std::optional<std::string>& text) {
    return text ? std::optional(Fingerprint{text->size(), std::hash<std::string>()(*text)}) : std::nullopt;
}

std::optional<HistoryFile::Fingerprint> HistoryFile::fingerprint(const fs::path& file) const {
    std::error_code ignored;
    return fingerprintOf(m_access.read(file, ignored));
}

/// Fails: absent when the file cannot be read at the moment.
std::optional<HistoryFile::Content> HistoryFile::content(const fs::path& file) const {
    constexpr int attempts = 3;
    std::error_code error;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto text = m_access.read(file, error);
        if (error == std::errc::no_such_file_or_directory)
            return Content();
        if (isFinalReadError(error))
            return Content{.runs = {}, .fingerprint = {}, .isDamaged = true};
        if (!text)
            continue;
        if (fingerprintOf(text) == m_known)
            return Content{.runs = {}, .fingerprint = m_known};
        auto runs = decodeRuns(*text);
        return Content{.runs = runs ? std::move(*runs) : recoverRuns(*text),
                       .fingerprint = fingerprintOf(text),
                       .isDamaged = !runs};
    }
    return std::nullopt;
}

void HistoryFile::removeLeftovers() const {
    OndelCore::platform::removeReplacementLeftovers(behindLinks(m_path).parent_path());
}

std::optional<Runs> HistoryFile::look(const Runs& mine, const HistoryChanges& changes, std::size_t most) {
    const fs::path file = behindLinks(m_path);
    auto now = content(file);
    if (!now || !now->fingerprint || now->fingerprint == m_known)
        return std::nullopt;
    most = changes.added.empty() ? std::max(most, now->runs.size()) : most;
    m_known = now->isDamaged ? std::nullopt : now->fingerprint;
    Runs runs = merged(std::move(now->runs), mine, changes, Deletions(lockOf(file)).ids());
    runs.resize(std::min(runs.size(), most));
    return runs;
}

std::optional<Runs> HistoryFile::update(const Runs& mine, const HistoryChanges& changes, std::size_t most) {
    constexpr int attempts = 5; // one fails only if another program has just written without the lock
    const fs::path file = behindLinks(m_path);
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored); // it may have been removed meanwhile
    const FileLock lock(lockOf(file), m_access.lockPatience);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        auto now = content(file);
        if (!now)
            return std::nullopt;
        Deletions deletions(lockOf(file));
        const bool isKnown = now->fingerprint && now->fingerprint == m_known;
        const std::size_t held = std::max(now->runs.size(), isKnown ? mine.size() : 0);
        const std::size_t recovered = now->runs.size();
        Runs runs = isKnown ? mine : merged(std::move(now->runs), mine, changes, deletions.ids());
        runs.resize(std::min(runs.size(), changes.added.empty() ? std::max(most, held) : most));
        const std::string json = encoded(runs);
        const auto isStillWanted = [&] {
            if (fingerprint(file) != now->fingerprint)
                return false;
            // Deletions are noted first: if the process is killed here, the run is still in the file.
            deletions.note(changes.deleted, runs);
            return !now->isDamaged || keepBeside(file, unreadablePrefix, recovered);
        };
        const std::error_code error = OndelCore::platform::replaceFile(
            file, json, listFilePermissions, OndelCore::platform::Lasting::onMedium, isStillWanted);
        if (!error) {
            m_known = fingerprintOf(json);
            return runs;
        }
        if (error != std::errc::operation_canceled)
            return std::nullopt;
    }
    return std::nullopt;
}

} // namespace TarnwickKit::model
