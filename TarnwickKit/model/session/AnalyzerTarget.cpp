#include "TarnwickKit/model/session/AnalyzerTarget.h"

#include "OndelCore/benchmark/BenchmarkTarget.h"
#include "OndelCore/logging/Log.h"
#include "OndelCore/platform/process/DetachedThread.h"
#include "OndelCore/platform/process/StandardFolders.h"
#include "OndelCore/platform/process/SystemCalls.h"
#include "OndelCore/platform/storage/ReplaceFile.h"
#include "OndelCore/platform/volumes/PathFacts.h"
#include "OndelCore/platform/volumes/PortalFolder.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/session/PropertyChange.h"
#include "TarnwickKit/model/session/SMARTReport.h"

#include <QCoreApplication>
#include <QPointer>
#include <QStringList>

#include <system_error>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::health::DiskSMART;

namespace {

struct TargetText {
    Q_DECLARE_TR_FUNCTIONS(TargetText)
};

/// The process's mask reduces these to what other files of this user have.
constexpr auto anyone = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write |
                        std::filesystem::perms::group_read | std::filesystem::perms::group_write |
                        std::filesystem::perms::others_read | std::filesystem::perms::others_write;

QString driveSymbol(bool isInside) { return isInside ? u"internaldrive"_s : u"externaldrive"_s; }

const QString networkSymbol = u"externaldrive.connected.to.line.below"_s;

bool answersInTime(const std::filesystem::path& folder, std::chrono::milliseconds patience) {
    using namespace OndelCore::platform;
    return pathFacts(folder, PathQuestion::place, {.patience = patience}).has_value();
}

} // namespace

bool VolumeFacts::isOnNetwork() const {
    return capabilities && isNetworkFilesystem(capabilities->filesystemType);
}

QString VolumeFacts::connectionLabel() const {
    if (isOnNetwork())
        return u"Network"_s;
    return info ? info->connection() : u"--"_s;
}

QString VolumeFacts::icon() const {
    return info && isOnNetwork() ? networkSymbol
                                 : driveSymbol(info && info->isInternal && !info->isRemovable);
}

RunRecord::Kind VolumeFacts::kind() const {
    if (isOnNetwork())
        return RunRecord::Kind::network;
    const bool isInternal = info && info->isInternal && !info->isRemovable;
    return isInternal ? RunRecord::Kind::internalDrive : RunRecord::Kind::external;
}

std::optional<std::int64_t> VolumeFacts::suitableBlock() const {
    return capabilities && capabilities->optimalIOSize > 0
               ? std::optional(BenchmarkPlan::alignedBlock(capabilities->optimalIOSize))
               : std::nullopt;
}

VolumeMenuItem VolumeMenuItem::from(const OndelCore::volumes::MountedVolume& volume) {
    VolumeMenuItem item;
    item.url = volume.url;
    item.name = volumeNameText(volume.name);
    item.systemImage = isNetworkFilesystem(volume.filesystemType)
                           ? networkSymbol
                           : driveSymbol(volume.isInternal && !volume.isRemovable);
    QStringList details;
    if (!volume.format.isEmpty())
        details << volumeFormatText(volume.format);
    if (volume.total.value_or(0) > 0)
        details << Format::bytes(*volume.total);
    item.detail = details.join(u" · "_s);
    return item;
}

AnalyzerTarget::AnalyzerTarget(const AnalyzerServices& services, QObject* parent)
    : QObject(parent)
    , m_services(services) {}

void AnalyzerTarget::select(const std::filesystem::path& folder) {
    m_folder = OndelCore::platform::folderBehindPortal(folder, {.patience = m_services.volumePatience});
    Q_EMIT folderChanged();
    sweepOrphans();
    askForFacts();
    setSMART(std::nullopt);
    refreshSMART();
}

std::filesystem::path AnalyzerTarget::folderOn(const std::filesystem::path& mountPoint) const {
    if (!answersInTime(mountPoint, m_services.volumePatience))
        return mountPoint;
    return OndelCore::benchmark::BenchmarkTarget::folder(mountPoint,
                                                         OndelCore::platform::homeFolder().value_or("/"));
}

void AnalyzerTarget::askForFolder(const std::optional<std::filesystem::path>& startingAt,
                                  AnalyzerDialogs::Chosen chosen) {
    if (!m_dialogs)
        return;
    auto start = startingAt == "/" ? OndelCore::platform::homeFolder() : startingAt;
    if (start && !answersInTime(*start, m_services.volumePatience))
        start.reset(); // the dialog would hang with it
    m_dialogs->askForFolder(TargetText::tr("Choose a folder on the volume to test (a temporary working "
                                           "folder is written there and removed)."),
                            //: The button that accepts the folder
                            TargetText::tr("Select"), start, std::move(chosen));
}

void AnalyzerTarget::sweepOrphans() {
    std::erase_if(m_sweeps, [](const auto& sweep) { return sweep.second.isFinished(); });
    QPromise<void> ended;
    ended.start();
    QFuture<void> previous = std::exchange(m_sweeps[*m_folder], ended.future());
    OndelCore::platform::runDetached([folder = *m_folder, previous, ended = std::move(ended),
                                      sweep = m_services.cleanupOrphans]() mutable {
        OndelCore::platform::enterBackground("ondel-sweep");
        previous.waitForFinished();
        sweep(folder);
        ended.finish();
    });
}

std::optional<QFuture<void>> AnalyzerTarget::sweep() const {
    const auto found = m_folder ? m_sweeps.find(*m_folder) : m_sweeps.end();
    return found == m_sweeps.end() || found->second.isFinished() ? std::nullopt
                                                                 : std::optional(found->second);
}

void AnalyzerTarget::askForFacts() {
    const auto question = [load = m_services.loadVolume, probe = m_services.probeCapabilities,
                           location = OndelCore::volumes::Location::local(*m_folder)] {
        return VolumeFacts{.info = load(location), .capabilities = probe(location)};
    };
    if (!m_volumeQuestion.ask(
            question, [this](const VolumeFacts& facts) { setFacts(facts); }, m_services.volumePatience))
        setFacts({});
}

void AnalyzerTarget::setFacts(const VolumeFacts& facts) {
    m_facts = facts;
    Q_EMIT factsChanged();
    Q_EMIT factsTaken();
}

void AnalyzerTarget::learn(const OndelCore::platform::TriedAbilities& tried) {
    if (!m_facts.capabilities)
        return;
    auto known = m_facts.capabilities;
    known->learn(tried);
    if (std::exchange(m_facts.capabilities, known) != known)
        Q_EMIT factsChanged();
}

void AnalyzerTarget::refreshSMART() {
    if (!m_folder)
        return;
    m_healthQuestion.ask([folder = *m_folder, read = m_services.readHealth] { return read(folder); },
                         [this](const std::optional<DiskSMART>& smart) { setSMART(smart); });
}

void AnalyzerTarget::setSMART(std::optional<DiskSMART> smart) {
    changeProperty(*this, m_smart, std::move(smart), &AnalyzerTarget::smartChanged);
}

void AnalyzerTarget::exportSMART() {
    if (!m_smart || !m_folder || !m_dialogs)
        return;
    const QDateTime date = m_services.now();
    const std::optional<QString> drive = m_services.driveIdentity(*m_folder).model;
    const QByteArray text = SMARTReport::text(*m_smart, drive, date).toUtf8();
    const auto write = [text, target = QPointer(this)](const std::filesystem::path& file) {
        const std::string_view content(text.data(), static_cast<std::size_t>(text.size()));
        const std::error_code error = OndelCore::platform::replaceFile(file, content, anyone);
        if (!error)
            return;
        const std::system_error failure(error);
        OndelCore::logging::Log::app.error("smart export failed",
                                           OndelCore::logging::LogField::failure(failure));
        if (target && target->m_dialogs)
            target->m_dialogs->showError(describe(failure));
    };
    m_dialogs->askForTextFile(SMARTReport::fileName(drive, date), write);
}

} // namespace TarnwickKit::model
