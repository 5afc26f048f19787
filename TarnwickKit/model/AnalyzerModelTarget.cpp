// What is to be tested: the target folder, and what is known of its volume and drive.

#include "OndelCore/benchmark/BenchmarkTarget.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/platform/BackgroundThread.h"
#include "OndelCore/platform/ReplaceFile.h"
#include "OndelCore/platform/StandardFolders.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "TarnwickKit/model/AnalyzerModel.h"
#include "TarnwickKit/model/PropertyChange.h"
#include "TarnwickKit/model/SMARTReport.h"

#include <QFile>
#include <QPointer>

#include <algorithm>
#include <thread>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::health::DiskSMART;
using OndelCore::volumes::Location;

namespace {

std::filesystem::path localPath(const QUrl& url) {
    return QFile::encodeName(url.toLocalFile()).toStdString();
}

std::optional<std::int64_t> suitableBlock(std::int64_t optimalIOSize) {
    return optimalIOSize > 0 ? std::optional(BenchmarkPlan::alignedBlock(optimalIOSize)) : std::nullopt;
}

/// What the process's mask leaves of these is what other files of this user have.
constexpr auto anyone = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                        std::filesystem::perms::group_read | std::filesystem::perms::group_write |
                        std::filesystem::perms::others_read | std::filesystem::perms::others_write;

} // namespace

QString AnalyzerModel::targetFolderText() const {
    return m_targetFolder ? QFile::decodeName(QByteArray::fromStdString(m_targetFolder->native()))
                          : QString();
}

void AnalyzerModel::select(const QUrl& folder) {
    if (folder.isLocalFile())
        select(localPath(folder));
}

void AnalyzerModel::select(const std::filesystem::path& folder) {
    if (isRunning())
        return;
    m_targetFolder = folder;
    Q_EMIT targetFolderChanged();
    announceCanRun();
    sweepOrphans(folder);
    const Location location = Location::local(folder);
    m_volumeInfo = m_services.loadVolume(location);
    m_capabilities = m_services.probeCapabilities(location);
    Q_EMIT volumeChanged();
    setSMART(std::nullopt);
    refreshSMART();
    setOptimalBlock(m_capabilities ? suitableBlock(m_capabilities->optimalIOSize) : std::nullopt);
    setPhase(m_currentRun ? Phase::Done : Phase::Idle);
    clearLiveSamples();
}

void AnalyzerModel::selectVolume(const QUrl& mountPoint) {
    if (!mountPoint.isLocalFile())
        return;
    const auto home = OndelCore::platform::homeFolder().value_or("/");
    select(OndelCore::benchmark::BenchmarkTarget::folder(localPath(mountPoint), home));
}

void AnalyzerModel::chooseFolder() { chooseFolder(m_targetFolder); }

void AnalyzerModel::chooseFolder(const std::optional<std::filesystem::path>& startingAt) {
    if (!m_dialogs)
        return;
    const auto start = startingAt == "/" ? OndelCore::platform::homeFolder() : startingAt;
    m_dialogs->askForFolder(
        u"Choose a folder on the volume to test (a temporary working folder is written there and removed)."_s,
        u"Select"_s, start, [model = QPointer(this)](const std::filesystem::path& folder) {
            if (model)
                model->select(folder);
        });
}

/// A thread of its own and not a pool's: on a mount that hangs it may never come back, and nothing, the end
/// of the process included, is to wait for it.
void AnalyzerModel::sweepOrphans(const std::filesystem::path& folder) {
    std::erase_if(m_sweeps, [](const auto& sweep) { return sweep.second.isFinished(); });
    QPromise<void> ended;
    ended.start();
    QFuture<void> previous = std::exchange(m_sweeps[folder], ended.future());
    std::thread([folder, previous, ended = std::move(ended), sweep = m_services.cleanupOrphans]() mutable {
        OndelCore::platform::enterBackground("ondel-sweep");
        previous.waitForFinished();
        sweep(folder);
        ended.finish();
    }).detach();
}

std::vector<VolumeMenuItem> AnalyzerModel::mountedVolumeItems() {
    std::vector<VolumeMenuItem> items;
    std::ranges::transform(OndelCore::volumes::mountedVolumes(), std::back_inserter(items),
                           VolumeMenuItem::from);
    return items;
}

bool AnalyzerModel::isNetworkVolume() const {
    return m_capabilities && isNetworkFilesystem(m_capabilities->filesystemType);
}

QString AnalyzerModel::connectionLabel() const {
    if (isNetworkVolume())
        return u"Network"_s;
    return m_volumeInfo ? m_volumeInfo->connection() : u"--"_s;
}

QString AnalyzerModel::selectedVolumeIcon() const {
    if (!m_volumeInfo)
        return u"externaldrive"_s;
    if (isNetworkVolume())
        return u"externaldrive.connected.to.line.below"_s;
    return m_volumeInfo->isRemovable || !m_volumeInfo->isInternal ? u"externaldrive"_s : u"internaldrive"_s;
}

RunRecord::Kind AnalyzerModel::selectedVolumeKind() const {
    if (isNetworkVolume())
        return RunRecord::Kind::network;
    const bool isInternal = m_volumeInfo && m_volumeInfo->isInternal && !m_volumeInfo->isRemovable;
    return isInternal ? RunRecord::Kind::internalDrive : RunRecord::Kind::external;
}

/// The read blocks on the drive. Its thread outlives a model that goes meanwhile; nobody then takes the
/// answer.
void AnalyzerModel::refreshSMART() {
    if (!m_targetFolder)
        return;
    QPromise<std::optional<DiskSMART>> answer;
    answer.start();
    if (m_smartTask) {
        m_smartTask->disconnect(this);
        m_smartTask->deleteLater();
    }
    m_smartTask = new QFutureWatcher<std::optional<DiskSMART>>(this);
    connect(m_smartTask, &QFutureWatcherBase::finished, this, [this, folder = *m_targetFolder] {
        if (m_targetFolder == folder)
            setSMART(m_smartTask->result());
    });
    m_smartTask->setFuture(answer.future());
    std::thread([answer = std::move(answer), folder = *m_targetFolder,
                 read = m_services.readHealth]() mutable {
        answer.addResult(read(folder));
        answer.finish();
    }).detach();
}

void AnalyzerModel::setSMART(std::optional<DiskSMART> smart) {
    changeProperty(*this, m_smart, std::move(smart), &AnalyzerModel::smartChanged);
}

void AnalyzerModel::exportSMART() {
    if (!m_smart || !m_targetFolder || !m_dialogs)
        return;
    const QDateTime date = m_services.now();
    const std::optional<QString> drive = m_services.driveIdentity(*m_targetFolder).model;
    const QByteArray text = SMARTReport::text(*m_smart, drive, date).toUtf8();
    m_dialogs->askForTextFile(SMARTReport::fileName(drive, date), [text, model = QPointer(this)](
                                                                      const std::filesystem::path& file) {
        const std::string_view content(text.data(), static_cast<std::size_t>(text.size()));
        const std::error_code error = OndelCore::platform::replaceFile(file, content, anyone);
        if (!error)
            return;
        const std::system_error failure(error);
        OndelCore::logging::Log::app.error("smart export failed",
                                           OndelCore::logging::LogField::failure(failure));
        if (model && model->m_dialogs)
            model->m_dialogs->showError(describe(failure));
    });
}

} // namespace TarnwickKit::model
