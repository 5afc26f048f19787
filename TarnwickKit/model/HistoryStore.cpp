#include "TarnwickKit/model/HistoryStore.h"

#include "OndelCore/platform/ReplaceFile.h"
#include "OndelCore/platform/StandardFolders.h"
#include "TarnwickKit/model/JsonWriter.h"
#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecordJson.h"
#include "TarnwickKit/model/ThinnedCurve.h"

#include <QDateTime>

#include <algorithm>
#include <string>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

namespace {

constexpr const char* folderName = "tools.ondel.tarnwick";
constexpr const char* fileName = "history.json";
constexpr const char* unreadablePrefix = "history.unreadable-";
constexpr std::size_t unreadableFilesKept = 3;
/// What a run file names of a person's machine is nobody else's business.
constexpr auto ownerOnly = fs::perms::owner_read | fs::perms::owner_write;

fs::path defaultFolder() {
    std::error_code error;
    if (const auto data = OndelCore::platform::dataHome()) {
        fs::path folder = *data / folderName;
        fs::create_directories(folder, error);
        if (!error)
            return folder;
    }
    return fs::temp_directory_path(error) / folderName;
}

/// The form with thinned curves, which a run that came from another program may need.
std::optional<QByteArray> encodedSmall(const RunRecord& run) {
    RunRecord small = run;
    small.writeSamples = thinned(run.writeSamples);
    small.readSamples = thinned(run.readSamples);
    return encodeRun(small);
}

/// Of the files kept, the newest few stay; their names sort by time.
void dropOldUnreadableFiles(const fs::path& folder) {
    std::vector<fs::path> kept;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; entry != end; entry.increment(error)) {
        if (entry->path().filename().native().starts_with(unreadablePrefix))
            kept.push_back(entry->path());
    }
    std::ranges::sort(kept, std::greater());
    for (std::size_t index = unreadableFilesKept; index < kept.size(); ++index)
        fs::remove(kept[index], error);
}

} // namespace

HistoryStore::HistoryStore(std::optional<fs::path> directory, QObject* parent)
    : QObject(parent) {
    const fs::path folder = directory ? *directory : defaultFolder();
    std::error_code ignored;
    fs::create_directories(folder, ignored);
    m_url = folder / fileName;
    OndelCore::platform::removeReplacementLeftovers(folder);
    load();
}

void HistoryStore::load() {
    std::error_code error;
    if (fs::status(m_url, error).type() == fs::file_type::not_found)
        return;
    const auto content = readRunFile(m_url);
    auto runs = content ? decodeRuns(*content) : std::nullopt;
    m_fileIsUnreadable = !runs;
    if (runs)
        m_runs = std::move(*runs);
}

void HistoryStore::add(const RunRecord& run) {
    if (std::ranges::find(m_runs, run.id, &RunRecord::id) != m_runs.end())
        return;
    m_runs.insert(m_runs.begin(), run);
    if (m_runs.size() > limit)
        m_runs.resize(limit);
    save();
    Q_EMIT runsChanged();
}

void HistoryStore::deleteRun(const QUuid& id) {
    std::erase_if(m_runs, [&](const RunRecord& run) { return run.id == id; });
    save();
    Q_EMIT runsChanged();
}

void HistoryStore::setTitle(const std::optional<QString>& title, const QUuid& id) {
    const auto found = std::ranges::find(m_runs, id, &RunRecord::id);
    if (found == m_runs.end())
        return;
    found->customTitle = title;
    save();
    Q_EMIT runsChanged();
}

void HistoryStore::clear() {
    m_runs.clear();
    save();
    Q_EMIT runsChanged();
}

void HistoryStore::save() {
    if (m_fileIsUnreadable && !keepUnreadableFile())
        return;
    m_fileIsUnreadable = false;
    const QByteArray content = encoded();
    OndelCore::platform::replaceFile(m_url, {content.data(), static_cast<std::size_t>(content.size())},
                                     ownerOnly);
}

/// The file never grows beyond what can be read again. A run that has no JSON form is left out rather than
/// cost the others their place. Imported runs can be large, and where all of them together are too large for
/// the file, those above an even share of it go in with thinned curves; one whose texts alone exceed that is
/// left out, too.
QByteArray HistoryStore::encoded() const {
    std::vector<std::optional<QByteArray>> runs;
    std::size_t total = 2;
    for (const RunRecord& run : m_runs) {
        runs.push_back(encodeRun(run));
        total += runs.back() ? static_cast<std::size_t>(runs.back()->size()) + 1 : 0;
    }
    if (total > maxRunFileBytes) {
        const auto share = static_cast<qsizetype>((maxRunFileBytes - 2) / m_runs.size()) - 1;
        for (std::size_t index = 0; index < runs.size(); ++index) {
            if (runs[index] && runs[index]->size() > share)
                runs[index] = encodedSmall(m_runs[index]);
            if (runs[index] && runs[index]->size() > share)
                runs[index].reset();
        }
    }
    JsonWriter json;
    json.beginArray();
    for (const auto& run : runs) {
        if (run)
            json.raw(*run);
    }
    json.endArray();
    return json.json();
}

/// Keeps the file under another name, with a link where there are any, so that a process killed in between
/// leaves it in its place.
bool HistoryStore::keepUnreadableFile() const {
    QDateTime time = QDateTime::currentDateTimeUtc();
    std::error_code error;
    fs::path kept;
    do { // two files of one millisecond: the later one takes the next free name, in order
        kept = m_url.parent_path() /
               (unreadablePrefix + time.toString(QStringLiteral("yyyyMMddTHHmmss.zzzZ")).toStdString() +
                ".json");
        fs::create_hard_link(m_url, kept, error);
        time = time.addMSecs(1);
    } while (error == std::errc::file_exists);
    if (error) // a folder, or a file system without links
        fs::rename(m_url, kept, error);
    if (error)
        return false;
    dropOldUnreadableFiles(m_url.parent_path());
    return true;
}

} // namespace TarnwickKit::model
