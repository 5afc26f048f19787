#include "TarnwickKit/model/runs/HistoryStore.h"

#include "OndelCore/logging/Log.h"
#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/storage/PrivateFolder.h"
#include "TarnwickKit/model/runs/HistoryFile.h"

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

using OndelCore::logging::Log;

namespace {

constexpr const char* folderName = "tools.ondel.tarnwick";
constexpr const char* fileName = "history.json";

/// Absent rather than a folder that others can guess or write to.
std::optional<fs::path> defaultFolder() {
    if (const auto data = OndelCore::platform::dataHome()) {
        std::error_code error;
        fs::path folder = *data / folderName;
        fs::create_directories(folder, error);
        if (!error)
            return folder;
    }
    return OndelCore::platform::privateTemporaryFolder();
}

} // namespace

/// What the list and its file have to do with each other.
struct HistoryStore::Mirror {
    std::optional<HistoryFile> file;
    HistoryChanges changes;
    std::vector<QUuid> renamedElsewhere;
};

HistoryStore::HistoryStore(const std::optional<fs::path>& directory, QObject* parent)
    : HistoryStore(directory, parent, {}) {}

HistoryStore::HistoryStore(const std::optional<fs::path>& directory, QObject* parent,
                           const HistoryAccess& access)
    : QObject(parent)
    , m_mirror(std::make_unique<Mirror>()) {
    const auto folder = directory ? directory : defaultFolder();
    if (!folder) {
        Log::app.error("no folder for the history, runs are not kept");
        return;
    }
    std::error_code ignored;
    fs::create_directories(*folder, ignored);
    m_mirror->file.emplace(*folder / fileName, access);
    m_mirror->file->removeLeftovers();
    if (auto runs = m_mirror->file->look({}, {}, limit))
        m_runs = std::move(*runs);
}

HistoryStore::~HistoryStore() = default;

std::optional<fs::path> HistoryStore::url() const {
    return m_mirror->file ? std::optional(m_mirror->file->path()) : std::nullopt;
}

bool HistoryStore::isSaved() const { return m_mirror->file && m_mirror->changes == HistoryChanges(); }

void HistoryStore::add(const std::vector<RunRecord>& runs) {
    bool hasNew = false;
    for (const RunRecord& run : runs) {
        if (std::ranges::find(m_runs, run.id, &RunRecord::id) != m_runs.end())
            continue;
        m_runs.insert(m_runs.begin(), run);
        if (m_runs.size() > limit)
            m_runs.resize(limit);
        m_mirror->changes.added.insert(run.id);
        m_mirror->changes.deleted.erase(run.id);
        hasNew = true;
    }
    if (!hasNew)
        return;
    write();
    announce();
}

void HistoryStore::forget(const QUuid& id) {
    m_mirror->changes.deleted.insert(id);
    m_mirror->changes.added.erase(id);
    m_mirror->changes.renamed.erase(id);
}

void HistoryStore::deleteRun(const QUuid& id) {
    std::erase_if(m_runs, [&](const RunRecord& run) { return run.id == id; });
    forget(id);
    write();
    announce();
}

void HistoryStore::setTitle(const std::optional<QString>& title, const QUuid& id) {
    const auto found = std::ranges::find(m_runs, id, &RunRecord::id);
    if (found == m_runs.end())
        return;
    found->customTitle = title;
    m_mirror->changes.renamed.insert(id);
    write();
    announce();
}

void HistoryStore::clear() {
    for (const RunRecord& run : std::exchange(m_runs, {}))
        forget(run.id);
    write();
    announce();
}

std::optional<HistoryStore::Place> HistoryStore::placeOf(const QUuid& id) const {
    const auto found = std::ranges::find(m_runs, id, &RunRecord::id);
    if (found == m_runs.end())
        return std::nullopt;
    const auto next = std::next(found);
    return Place{*found, next == m_runs.end() ? QUuid() : next->id};
}

/// The last deleted run first: the run behind an earlier one may have been deleted after it.
void HistoryStore::restore(const std::vector<Place>& deleted) {
    for (auto place = deleted.rbegin(); place != deleted.rend(); ++place) {
        const QUuid& id = place->run.id;
        if (std::ranges::find(m_runs, id, &RunRecord::id) != m_runs.end())
            continue;
        m_runs.insert(std::ranges::find(m_runs, place->next, &RunRecord::id), place->run);
        m_mirror->changes.added.insert(id);
        m_mirror->changes.deleted.erase(id);
    }
    write(std::max(limit, m_runs.size()));
    announce();
}

void HistoryStore::save() {
    if (write())
        announce();
}

void HistoryStore::refresh() {
    auto runs = m_mirror->file ? m_mirror->file->look(m_runs, m_mirror->changes, limit) : std::nullopt;
    if (runs && take(std::move(*runs)))
        announce();
}

bool HistoryStore::write(std::size_t most) {
    auto runs = m_mirror->file ? m_mirror->file->update(m_runs, m_mirror->changes, most) : std::nullopt;
    if (!runs)
        return false;
    m_mirror->changes = {};
    return take(std::move(*runs));
}

bool HistoryStore::take(std::vector<RunRecord> runs) {
    if (runs == m_runs)
        return false;
    for (const RunRecord& before : std::exchange(m_runs, std::move(runs))) {
        const auto now = std::ranges::find(m_runs, before.id, &RunRecord::id);
        if (now != m_runs.end() && now->customTitle != before.customTitle)
            m_mirror->renamedElsewhere.push_back(before.id);
    }
    return true;
}

void HistoryStore::announce() {
    Q_EMIT runsChanged();
    for (const QUuid& id : std::exchange(m_mirror->renamedElsewhere, {})) {
        const auto run = std::ranges::find(m_runs, id, &RunRecord::id);
        if (run != m_runs.end())
            Q_EMIT renamedElsewhere(id, run->customTitle);
    }
}

} // namespace TarnwickKit::model
