#include "TarnwickKit/model/capacity/CapacityChecks.h"

#include "OndelCore/platform/storage/FileLock.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "TarnwickKit/model/capacity/CapacityCodec.h"
#include "TarnwickKit/model/runs/JsonWriter.h"
#include "TarnwickKit/model/runs/ListFile.h"
#include "TarnwickKit/model/runs/RunCodec.h"
#include "TarnwickKit/model/runs/RunFile.h"

#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

namespace TarnwickKit::model {

namespace fs = std::filesystem;

namespace {

constexpr const char* checksName = "checks.json";
constexpr const char* unreadableChecks = "checks.unreadable-";
constexpr std::chrono::milliseconds checksPatience(500);

/// As many as the file may hold, the newest first.
std::string encodedChecks(const std::vector<CapacityRecord>& checks) {
    JsonWriter json;
    json.beginArray();
    for (const CapacityRecord& check : checks) {
        const auto text = encodeCheck(check);
        if (!text)
            continue;
        if (static_cast<std::size_t>(json.json().size() + text->size()) + 2 > maxRunFileBytes)
            break;
        json.raw(*text);
    }
    json.endArray();
    return json.json().toStdString();
}

} // namespace

CapacityChecks::CapacityChecks(const std::optional<fs::path>& folder, QObject* parent)
    : QObject(parent) {
    if (folder)
        m_file = *folder / checksName;
}

const std::vector<CapacityRecord>& CapacityChecks::checks() {
    if (!std::exchange(m_wasRead, true) && m_file)
        if (const auto now = content(behindLinks(*m_file)))
            take(now->checks);
    return m_checks;
}

void CapacityChecks::refresh() {
    const auto now = m_wasRead && m_file ? content(behindLinks(*m_file)) : std::nullopt;
    if (!now)
        return;
    const std::vector<CapacityRecord> before = m_checks;
    take(now->checks);
    if (before != m_checks)
        Q_EMIT checksChanged();
}

void CapacityChecks::add(const CapacityRecord& check) {
    checks();
    std::erase_if(m_checks, [&](const CapacityRecord& each) { return each.id == check.id; });
    m_checks.insert(m_checks.begin(), check);
    m_unsaved.push_back(check.id);
    if (!write())
        m_checks.resize(std::min(m_checks.size(), limit));
    Q_EMIT checksChanged();
}

/// What is not in the file yet comes first.
void CapacityChecks::take(const std::vector<CapacityRecord>& stored) {
    std::erase_if(m_checks, [this](const CapacityRecord& check) {
        return std::ranges::find(m_unsaved, check.id) == m_unsaved.end();
    });
    for (const CapacityRecord& check : stored)
        if (std::ranges::find(m_checks, check.id, &CapacityRecord::id) == m_checks.end())
            m_checks.push_back(check);
    m_checks.resize(std::min(m_checks.size(), limit));
}

/// Fails: absent when the file cannot be read at the moment.
std::optional<CapacityChecks::Content> CapacityChecks::content(const fs::path& file) {
    constexpr int attempts = 3;
    std::error_code error;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        auto text = readRunFile(file, error);
        if (error == std::errc::no_such_file_or_directory)
            return Content();
        if (isFinalReadError(error))
            return Content{.checks = {}, .text = {}, .isDamaged = true};
        if (!text)
            continue;
        auto checks = decodeChecks(*text);
        const bool isDamaged = !checks;
        return Content{.checks = isDamaged ? recoverChecks(*text) : std::move(*checks),
                       .text = std::move(text),
                       .isDamaged = isDamaged};
    }
    return std::nullopt;
}

bool CapacityChecks::write() {
    constexpr int attempts = 5; // one fails only if another program has just written without the lock
    if (!m_file)
        return false;
    const fs::path file = behindLinks(*m_file);
    std::error_code ignored;
    fs::create_directories(file.parent_path(), ignored);
    OndelCore::platform::removeReplacementLeftovers(file.parent_path());
    const OndelCore::platform::FileLock lock(lockOf(file), checksPatience);
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto now = content(file);
        if (!now)
            return false;
        take(now->checks);
        const auto isStillWanted = [&] {
            return readRunFile(file) == now->text &&
                   (!now->isDamaged || keepBeside(file, unreadableChecks, now->checks.size()));
        };
        const std::error_code error =
            OndelCore::platform::replaceFile(file, encodedChecks(m_checks), listFilePermissions,
                                             OndelCore::platform::Lasting::onMedium, isStillWanted);
        if (!error) {
            m_unsaved.clear();
            return true;
        }
        if (error != std::errc::operation_canceled)
            return false;
    }
    return false;
}

} // namespace TarnwickKit::model
