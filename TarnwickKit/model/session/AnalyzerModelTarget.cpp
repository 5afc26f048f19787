// What is to be tested: the target folder, and what is known of its volume and drive.

#include "OndelCore/benchmark/BenchmarkTarget.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/volumes/FileUrl.h"
#include "OndelCore/volumes/MountedVolumes.h"
#include "TarnwickKit/model/session/AnalyzerRun.h"
#include "TarnwickKit/model/session/PropertyChange.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QFile>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::health::DiskSMART;
using OndelCore::volumes::Location;

namespace {

std::optional<std::int64_t> suitableBlock(std::int64_t optimalIOSize) {
    return optimalIOSize > 0 ? std::optional(BenchmarkPlan::alignedBlock(optimalIOSize)) : std::nullopt;
}

/// What the process's mask leaves of these is what other files of this user have.
constexpr auto anyone = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                        std::filesystem::perms::group_read | std::filesystem::perms::group_write |
                        std::filesystem::perms::others_read | std::filesystem::perms::others_write;

bool answersInTime(const std::filesystem::path& folder, std::chrono::milliseconds patience) {
    using namespace OndelCore::platform;
    return pathFacts(folder, PathQuestion::place, {.patience = patience}).has_value();
}

} // namespace

QString AnalyzerModel::targetFolderText() const {
    return m_targetFolder ? QFile::decodeName(QByteArray::fromStdString(m_targetFolder->native()))
                          : QString();
}

void AnalyzerModel::select(const QUrl& folder) {
    if (const auto path = OndelCore::volumes::localPath(folder))
        select(*path);
}

void AnalyzerModel::select(const std::filesystem::path& folder) {
    if (isRunning())
        return;
    m_targetFolder = folder;
    Q_EMIT targetFolderChanged();
    announceCanRun();
    sweepOrphans(folder);
    lookAtVolume(folder);
    setSMART(std::nullopt);
    refreshSMART();
    setPhase(m_currentRun ? Phase::Done : Phase::Idle);
    clearLiveSamples();
}

/// A volume that hangs has no facts, and the window lives on. What it tells later is still taken, also into a
/// run that began without it: the target cannot have changed since.
void AnalyzerModel::lookAtVolume(const std::filesystem::path& folder) {
    const auto question = [load = m_services.loadVolume, probe = m_services.probeCapabilities,
                           location = Location::local(folder)] {
        return VolumeFacts{.info = load(location), .capabilities = probe(location)};
    };
    const auto take = [this](const VolumeFacts& facts) {
        setVolume(facts);
        if (isRunning())
            m_run->learn(facts);
    };
    if (!m_volumeQuestion.ask(question, take, m_services.volumePatience))
        setVolume({});
}

void AnalyzerModel::setVolume(const VolumeFacts& facts) {
    m_volume = facts;
    Q_EMIT volumeChanged();
    setOptimalBlock(facts.capabilities ? suitableBlock(facts.capabilities->optimalIOSize) : std::nullopt);
}

void AnalyzerModel::learnAbilities(const OndelCore::platform::TriedAbilities& tried) {
    if (!m_volume.capabilities)
        return;
    auto known = m_volume.capabilities;
    known->learn(tried);
    if (std::exchange(m_volume.capabilities, known) != known)
        Q_EMIT volumeChanged();
}

void AnalyzerModel::selectVolume(const QUrl& mountPoint) {
    const auto volume = OndelCore::volumes::localPath(mountPoint);
    if (!volume)
        return;
    const auto home = OndelCore::platform::homeFolder().value_or("/");
    const bool answers = answersInTime(*volume, m_services.volumePatience);
    select(answers ? OndelCore::benchmark::BenchmarkTarget::folder(*volume, home) : *volume);
}

void AnalyzerModel::chooseFolder() { chooseFolder(m_targetFolder); }

void AnalyzerModel::chooseFolder(const std::optional<std::filesystem::path>& startingAt) {
    if (!m_dialogs)
        return;
    auto start = startingAt == "/" ? OndelCore::platform::homeFolder() : startingAt;
    if (start && !answersInTime(*start, m_services.volumePatience))
        start.reset(); // the dialog would hang with it
    m_dialogs->askForFolder(
        u"Choose a folder on the volume to test (a temporary working folder is written there and removed)."_s,
        u"Select"_s, start, [model = QPointer(this)](const std::filesystem::path& folder) {
            if (model)
                model->select(folder);
        });
}

void AnalyzerModel::sweepOrphans(const std::filesystem::path& folder) {
    std::erase_if(m_sweeps, [](const auto& sweep) { return sweep.second.isFinished(); });
    QPromise<void> ended;
    ended.start();
    QFuture<void> previous = std::exchange(m_sweeps[folder], ended.future());
    OndelCore::platform::runDetached(
        [folder, previous, ended = std::move(ended), sweep = m_services.cleanupOrphans]() mutable {
            OndelCore::platform::enterBackground("ondel-sweep");
            previous.waitForFinished();
            sweep(folder);
            ended.finish();
        });
}

std::vector<VolumeMenuItem> AnalyzerModel::mountedVolumeItems() {
    std::vector<VolumeMenuItem> items;
    std::ranges::transform(OndelCore::volumes::mountedVolumes(), std::back_inserter(items),
                           VolumeMenuItem::from);
    return items;
}

bool AnalyzerModel::isNetworkVolume() const {
    return m_volume.capabilities && isNetworkFilesystem(m_volume.capabilities->filesystemType);
}

QString AnalyzerModel::connectionLabel() const {
    if (isNetworkVolume())
        return u"Network"_s;
    return m_volume.info ? m_volume.info->connection() : u"--"_s;
}

QString AnalyzerModel::selectedVolumeIcon() const {
    if (!m_volume.info)
        return u"externaldrive"_s;
    if (isNetworkVolume())
        return u"externaldrive.connected.to.line.below"_s;
    return m_volume.info->isRemovable || !m_volume.info->isInternal ? u"externaldrive"_s : u"internaldrive"_s;
}

RunRecord::Kind AnalyzerModel::selectedVolumeKind() const {
    if (isNetworkVolume())
        return RunRecord::Kind::network;
    const bool isInternal = m_volume.info && m_volume.info->isInternal && !m_volume.info->isRemovable;
    return isInternal ? RunRecord::Kind::internalDrive : RunRecord::Kind::external;
}

void AnalyzerModel::refreshSMART() {
    if (!m_targetFolder)
        return;
    m_healthQuestion.ask([folder = *m_targetFolder, read = m_services.readHealth] { return read(folder); },
                         [this, folder = *m_targetFolder](const std::optional<DiskSMART>& smart) {
                             if (m_targetFolder == folder)
                                 setSMART(smart);
                         });
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
