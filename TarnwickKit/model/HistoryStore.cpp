#include "TarnwickKit/model/HistoryStore.h"

#include "OndelCore/platform/PrivateFolder.h"
#include "OndelCore/platform/ReplaceFile.h"
#include "OndelCore/platform/StandardFolders.h"
#include "TarnwickKit/model/JsonWriter.h"
#include "TarnwickKit/model/RunFile.h"
#include "TarnwickKit/model/RunRecordFields.h"
#include "TarnwickKit/model/RunRecordJson.h"
#include "TarnwickKit/model/ThinnedCurve.h"

#include <QDateTime>

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

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
    return OndelCore::platform::privateTemporaryFolder().value_or(fs::temp_directory_path(error) /
                                                                  folderName);
}

/// What the JSON of a record's field takes at the least.
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

/// The JSON of a run if it has one of at most `most` bytes. One that is far larger costs nothing.
std::optional<QByteArray> encodedWithin(std::size_t most, const RunRecord& run) {
    if (leastLength(run) > most)
        return std::nullopt;
    auto json = encodeRun(run);
    return json && static_cast<std::size_t>(json->size()) <= most ? json : std::nullopt;
}

RunRecord withThinnedCurves(RunRecord run) {
    run.writeSamples = thinned(run.writeSamples);
    run.readSamples = thinned(run.readSamples);
    return run;
}

/// A JSON array of what `form` makes of each run. Fails: absent as soon as it is too long for the file.
template <typename Form>
std::optional<QByteArray> arrayOf(const std::vector<RunRecord>& runs, Form form) {
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

/// Of the files kept, the newest few stay. Their names sort by time; `newest` is the newest whatever the
/// clock said when the others were named.
void dropOldUnreadableFiles(const fs::path& newest) {
    std::vector<fs::path> others;
    std::error_code error;
    for (fs::directory_iterator entry(newest.parent_path(), error), end; entry != end;
         entry.increment(error)) {
        if (entry->path().filename().native().starts_with(unreadablePrefix) && entry->path() != newest)
            others.push_back(entry->path());
    }
    std::ranges::sort(others, std::greater());
    for (std::size_t index = unreadableFilesKept - 1; index < others.size(); ++index)
        fs::remove(others[index], error);
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

HistoryStore::OneSave::~OneSave() {
    m_store.m_holdsSave = false;
    if (m_store.m_owesSave)
        m_store.save();
}

void HistoryStore::save() {
    m_owesSave = m_holdsSave;
    if (m_owesSave)
        return;
    if (m_fileIsUnreadable && !keepUnreadableFile())
        return;
    m_fileIsUnreadable = false;
    std::error_code ignored;
    fs::create_directories(m_url.parent_path(), ignored); // somebody may have tidied up meanwhile
    const QByteArray content = encoded();
    OndelCore::platform::replaceFile(m_url, {content.data(), static_cast<std::size_t>(content.size())},
                                     ownerOnly);
}

/// The file never grows beyond what can be read again. A run that has no JSON form is left out rather than
/// cost the others their place. Imported runs can be large, and where all of them together are too large for
/// the file, those above an even share of it go in with thinned curves; one whose texts alone exceed that is
/// left out, too.
QByteArray HistoryStore::encoded() const {
    if (auto all = arrayOf(m_runs, encodeRun))
        return *all;
    const std::size_t share = (maxRunFileBytes - 2) / m_runs.size() - 1; // without brackets and a comma
    return arrayOf(m_runs,
                   [share](const RunRecord& run) {
                       auto full = encodedWithin(share, run);
                       return full ? full : encodedWithin(share, withThinnedCurves(run));
                   })
        .value();
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
    dropOldUnreadableFiles(kept);
    return true;
}

} // namespace TarnwickKit::model
