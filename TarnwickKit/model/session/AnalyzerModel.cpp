#include "TarnwickKit/model/session/AnalyzerModel.h"

#include "OndelCore/volumes/FileUrl.h"
#include "TarnwickKit/model/capacity/CapacityChecks.h"
#include "TarnwickKit/model/capacity/CapacitySession.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnalyzerTarget.h"
#include "TarnwickKit/model/session/PropertyChange.h"
#include "TarnwickKit/model/session/RunComparison.h"
#include "TarnwickKit/model/session/RunLibrary.h"
#include "TarnwickKit/model/session/RunSession.h"

#include <QFile>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkTest;
using OndelCore::volumes::localPath;

namespace {

std::optional<std::filesystem::path> folderOf(const HistoryStore& history) {
    const auto file = history.url();
    return file ? std::optional(file->parent_path()) : std::nullopt;
}

} // namespace

struct AnalyzerModel::Parts {
    explicit Parts(const AnalyzerServices& asked)
        : services(asked) {}

    const AnalyzerServices services;
    AnalyzerTarget target{services};
    RunLibrary library{services.historyFolder};
    RunComparison comparison{library};
    RunSession session{services, target};
    CapacitySession capacity{services, target};
    CapacityChecks checks{folderOf(library.history())};

    Phase phase = Phase::Idle;
    RunFailure failure;
    bool couldRun = false;
    bool wasBusy = false;
    bool showsCheck = false;
    QString refusal;
    QTimer refusalClock;
};

AnalyzerModel::AnalyzerModel(QObject* parent)
    : AnalyzerModel(AnalyzerServices::real(), parent) {}

AnalyzerModel::AnalyzerModel(const AnalyzerServices& services, QObject* parent)
    : AnalyzerSettings(parent)
    , m_parts(std::make_unique<Parts>(services)) {
    static_assert(maxLiveSamples == RunSession::maxLiveSamples);
    forwardSignals();
    connectParts();
}

AnalyzerModel::~AnalyzerModel() = default;

void AnalyzerModel::forwardSignals() {
    const auto forward = [this](auto& part, auto from, void (AnalyzerModel::*to)()) {
        connect(&part, from, this, to);
    };
    forward(m_parts->target, &AnalyzerTarget::folderChanged, &AnalyzerModel::targetFolderChanged);
    forward(m_parts->target, &AnalyzerTarget::factsChanged, &AnalyzerModel::volumeChanged);
    forward(m_parts->target, &AnalyzerTarget::smartChanged, &AnalyzerModel::smartChanged);
    forward(m_parts->session, &RunSession::resultChanged, &AnalyzerModel::resultChanged);
    forward(m_parts->session, &RunSession::liveTestChanged, &AnalyzerModel::liveTestTitleChanged);
    forward(m_parts->session, &RunSession::liveTestChanged, &AnalyzerModel::liveTestChanged);
    forward(*this, &AnalyzerModel::randomBlockChanged, &AnalyzerModel::liveTestTitleChanged);
    forward(m_parts->session, &RunSession::liveSamplesChanged, &AnalyzerModel::liveSamplesChanged);
    forward(m_parts->session, &RunSession::liveTemperaturesChanged, &AnalyzerModel::liveTemperaturesChanged);
    forward(m_parts->session, &RunSession::progressChanged, &AnalyzerModel::progressChanged);
    forward(m_parts->library, &RunLibrary::currentRunChanged, &AnalyzerModel::currentRunChanged);
    forward(m_parts->library, &RunLibrary::currentRunCollapsedChanged,
            &AnalyzerModel::currentRunCollapsedChanged);
    forward(m_parts->library, &RunLibrary::previousRunsChanged, &AnalyzerModel::previousRunsChanged);
    forward(m_parts->library, &RunLibrary::expandedRunIDsChanged, &AnalyzerModel::expandedRunIDsChanged);
    forward(m_parts->library, &RunLibrary::undoableRunsChanged, &AnalyzerModel::undoableRunsChanged);
    forward(m_parts->comparison, &RunComparison::modeChanged, &AnalyzerModel::compareModeChanged);
    forward(m_parts->comparison, &RunComparison::selectionChanged, &AnalyzerModel::compareSelectionChanged);
    forward(m_parts->comparison, &RunComparison::runsChanged, &AnalyzerModel::comparisonChanged);
    forward(m_parts->comparison, &RunComparison::began, &AnalyzerModel::comparisonBegan);
    forward(m_parts->comparison, &RunComparison::referenceChanged,
            &AnalyzerModel::comparisonReferenceChanged);
}

void AnalyzerModel::connectParts() {
    connect(this, &AnalyzerModel::targetFolderChanged, this, &AnalyzerModel::announceCanRun);
    connect(this, &AnalyzerModel::selectedTestsChanged, this, &AnalyzerModel::announceCanRun);
    connect(&m_parts->target, &AnalyzerTarget::factsTaken, this,
            [this] { setOptimalBlock(m_parts->target.facts().suitableBlock()); });
    connect(&m_parts->session, &RunSession::started, this, &AnalyzerModel::runStarted);
    connect(&m_parts->session, &RunSession::recorded, &m_parts->library, &RunLibrary::add);
    connect(&m_parts->session, &RunSession::ended, this,
            [this](RunSession::Outcome outcome, const RunFailure& failure) {
                switch (outcome) {
                case RunSession::Outcome::finished:
                    return setPhase(Phase::Done);
                case RunSession::Outcome::cancelled:
                    return setPhase(Phase::Idle);
                case RunSession::Outcome::failed:
                    return setPhase(Phase::Failed, failure);
                }
            });
    connect(&m_parts->library, &RunLibrary::currentRunChanged, this, [this] {
        if (!currentRun() && m_parts->phase == Phase::Done)
            setPhase(Phase::Idle);
    });
    connect(&m_parts->capacity, &CapacitySession::started, this, &AnalyzerModel::announceCanRun);
    connect(&m_parts->capacity, &CapacitySession::recorded, this, [this](const CapacityRecord& check) {
        if (!check.wasStopped || check.isBad())
            m_parts->checks.add(check);
    });
    connect(&m_parts->capacity, &CapacitySession::ended, this, &AnalyzerModel::announceCanRun);
    connect(this, &AnalyzerModel::comparisonBegan, this, [this] { setShowsCheck(false); });
    connect(this, &AnalyzerModel::compareModeChanged, this, [this] {
        if (compareMode())
            setShowsCheck(false);
    });
    connect(&m_parts->library, &RunLibrary::shownAgain, this, [this] { setPhase(Phase::Done); });
    connect(&m_parts->library, &RunLibrary::unreadable, this, [this](const auto& files) {
        std::vector<std::string> names;
        names.reserve(files.size());
        for (const std::filesystem::path& file : files)
            names.push_back(file.filename());
        tellRefusal(model::refusal(names, true));
    });
    constexpr std::chrono::seconds readingTime(8);
    m_parts->refusalClock.setInterval(readingTime);
    m_parts->refusalClock.setSingleShot(true);
    connect(&m_parts->refusalClock, &QTimer::timeout, this, [this] { tellRefusal({}); });
    connect(&m_parts->library, &RunLibrary::importShown, this, [this] {
        m_parts->session.setResult(std::nullopt);
        setPhase(Phase::Done);
    });
}

void AnalyzerModel::announceCanRun() {
    changeProperty(*this, m_parts->wasBusy, isBusy(), &AnalyzerModel::busyChanged);
    changeProperty(*this, m_parts->couldRun, canRun(), &AnalyzerModel::canRunChanged);
}

QString AnalyzerModel::targetFolderText() const {
    return targetFolder() ? QFile::decodeName(QByteArray::fromStdString(targetFolder()->native()))
                          : QString();
}

void AnalyzerModel::select(const QUrl& folder) {
    if (const auto path = localPath(folder))
        select(*path);
}

void AnalyzerModel::select(const std::filesystem::path& folder) {
    if (isBusy())
        return;
    m_parts->target.select(folder);
    setPhase(currentRun() ? Phase::Done : Phase::Idle);
    m_parts->session.clearLiveCurves();
}

void AnalyzerModel::selectVolume(const QUrl& mountPoint) {
    if (const auto volume = localPath(mountPoint))
        select(m_parts->target.folderOn(*volume));
}

void AnalyzerModel::chooseFolder() { chooseFolder(targetFolder()); }

void AnalyzerModel::chooseFolder(const std::optional<std::filesystem::path>& startingAt) {
    m_parts->target.askForFolder(startingAt, [model = QPointer(this)](const std::filesystem::path& folder) {
        if (model)
            model->select(folder);
    });
}

std::vector<VolumeMenuItem> AnalyzerModel::mountedVolumeItems() {
    std::vector<VolumeMenuItem> items;
    std::ranges::transform(OndelCore::volumes::mountedVolumes(), std::back_inserter(items),
                           VolumeMenuItem::from);
    return items;
}

void AnalyzerModel::runStarted() {
    setPhase(Phase::Running);
    setShowsCheck(false);
    m_parts->library.setCurrentRun(std::nullopt);
}

void AnalyzerModel::setPhase(Phase phase) { setPhase(phase, {}); }

void AnalyzerModel::setPhase(Phase phase, const RunFailure& failure) {
    if (m_parts->phase == phase && m_parts->failure == failure)
        return;
    m_parts->phase = phase;
    m_parts->failure = failure;
    m_parts->library.setShowsImports(!isRunning());
    Q_EMIT phaseChanged();
    announceCanRun();
}

void AnalyzerModel::refuse(const std::vector<std::string>& names) {
    tellRefusal(model::refusal(names, false));
}

void AnalyzerModel::tellRefusal(const QString& sentence) {
    m_parts->refusalClock.start();
    changeProperty(*this, m_parts->refusal, sentence, &AnalyzerModel::refusalChanged);
}

QString AnalyzerModel::liveTestName() const { return liveTest() ? name(*liveTest()) : QString(); }

QString AnalyzerModel::liveTestTitle() const {
    return liveTest() ? title(*liveTest(), randomBlock()) : QString();
}

std::optional<QString> AnalyzerModel::sidebarValue(BenchmarkTest test) const {
    return result() ? headline(*result(), test) : std::nullopt;
}

QStringList AnalyzerModel::sidebarValues() const {
    QStringList values;
    for (const BenchmarkTest test : OndelCore::benchmark::allBenchmarkTests)
        values.append(sidebarValue(test).value_or(QString()));
    return values;
}

QList<bool> AnalyzerModel::sidebarMarks() const {
    QList<bool> marks;
    for (const BenchmarkTest test : OndelCore::benchmark::allBenchmarkTests)
        marks.append(sidebarValue(test) && isInvalid(m_parts->session.remarks(), test));
    return marks;
}

QString AnalyzerModel::describe(const std::exception& error) { return model::describe(error); }

// --- What is forwarded to the target

const std::optional<std::filesystem::path>& AnalyzerModel::targetFolder() const {
    return m_parts->target.folder();
}
const std::optional<OndelCore::volumes::VolumeInfo>& AnalyzerModel::volumeInfo() const {
    return m_parts->target.facts().info;
}
const std::optional<OndelCore::volumes::VolumeCapabilities>& AnalyzerModel::capabilities() const {
    return m_parts->target.facts().capabilities;
}
bool AnalyzerModel::isNetworkVolume() const { return m_parts->target.facts().isOnNetwork(); }
QString AnalyzerModel::connectionLabel() const { return m_parts->target.facts().connectionLabel(); }
QString AnalyzerModel::selectedVolumeIcon() const { return m_parts->target.facts().icon(); }
RunRecord::Kind AnalyzerModel::selectedVolumeKind() const { return m_parts->target.facts().kind(); }
const std::optional<OndelCore::health::DiskSMART>& AnalyzerModel::smart() const {
    return m_parts->target.smart();
}
void AnalyzerModel::exportSMART() { m_parts->target.exportSMART(); }
void AnalyzerModel::setDialogs(AnalyzerDialogs* dialogs) { m_parts->target.setDialogs(dialogs); }

// --- … to the run

AnalyzerModel::Phase AnalyzerModel::phase() const { return m_parts->phase; }
const QString& AnalyzerModel::failureMessage() const { return m_parts->failure.message; }
const QString& AnalyzerModel::failureExplanation() const { return m_parts->failure.explanation; }
bool AnalyzerModel::isRunning() const { return m_parts->phase == Phase::Running; }
std::optional<OndelCore::benchmark::BenchmarkTest> AnalyzerModel::liveTest() const {
    return m_parts->session.liveTest();
}
const std::vector<OndelCore::benchmark::ThroughputSample>& AnalyzerModel::liveSamples() const {
    return m_parts->session.liveSamples();
}
const std::vector<TemperaturePoint>& AnalyzerModel::liveTemperatures() const {
    return m_parts->session.liveTemperatures();
}
std::int64_t AnalyzerModel::completedBytes() const { return m_parts->session.completedBytes(); }
std::int64_t AnalyzerModel::totalBytes() const { return m_parts->session.totalBytes(); }
const LiveProgress& AnalyzerModel::liveProgress() const { return m_parts->session.liveProgress(); }
const std::optional<OndelCore::benchmark::BenchmarkResult>& AnalyzerModel::result() const {
    return m_parts->session.result();
}
void AnalyzerModel::start() {
    if (!isChecking())
        m_parts->session.start(makePlan());
}
void AnalyzerModel::cancel() {
    m_parts->session.cancel();
    m_parts->capacity.stop();
}
QFuture<void> AnalyzerModel::cancelAndWait() {
    return isChecking() ? m_parts->capacity.stopAndWait() : m_parts->session.cancelAndWait();
}
void AnalyzerModel::abandonRun() {
    m_parts->session.abandon();
    m_parts->capacity.abandon();
}
void AnalyzerModel::apply(const OndelCore::benchmark::BenchmarkProgress& progress) {
    m_parts->session.apply(progress);
}

// --- … to the capacity check

CapacitySession& AnalyzerModel::capacity() { return m_parts->capacity; }
CapacityChecks& AnalyzerModel::capacityChecks() { return m_parts->checks; }
bool AnalyzerModel::isChecking() const { return m_parts->capacity.isRunning(); }
void AnalyzerModel::startCheck(const OndelCore::capacity::CapacityPlan& plan) {
    if (isBusy() || !targetFolder())
        return;
    setShowsCheck(true);
    m_parts->capacity.start(plan);
}
bool AnalyzerModel::showsCheck() const { return m_parts->showsCheck; }
void AnalyzerModel::setShowsCheck(bool shows) {
    changeProperty(*this, m_parts->showsCheck, shows, &AnalyzerModel::showsCheckChanged);
}
void AnalyzerModel::openCheck() {
    if (isRunning())
        return;
    if (targetFolder())
        return setShowsCheck(true);
    m_parts->target.askForFolder(std::nullopt, [model = QPointer(this)](const std::filesystem::path& folder) {
        if (!model || model->isBusy())
            return;
        model->select(folder);
        model->setShowsCheck(true);
    });
}

// --- … to the stored runs

HistoryStore& AnalyzerModel::history() { return m_parts->library.history(); }
const HistoryStore& AnalyzerModel::history() const { return m_parts->library.history(); }
const std::optional<RunRecord>& AnalyzerModel::currentRun() const { return m_parts->library.currentRun(); }
bool AnalyzerModel::currentRunCollapsed() const { return m_parts->library.currentRunCollapsed(); }
void AnalyzerModel::setCurrentRunCollapsed(bool collapsed) {
    m_parts->library.setCurrentRunCollapsed(collapsed);
}
std::vector<RunRecord> AnalyzerModel::previousRuns() const { return m_parts->library.previousRuns(); }
const std::set<QUuid>& AnalyzerModel::expandedRunIDs() const { return m_parts->library.expandedRunIDs(); }
void AnalyzerModel::setRunExpanded(const QUuid& id, bool expanded) {
    m_parts->library.setRunExpanded(id, expanded);
}
void AnalyzerModel::deleteRun(const QUuid& id) { m_parts->library.deleteRun(id); }
void AnalyzerModel::renameRun(const QUuid& id, const QString& text) { m_parts->library.renameRun(id, text); }
void AnalyzerModel::clearHistory() { m_parts->library.clear(); }
int AnalyzerModel::undoableRuns() const { return static_cast<int>(m_parts->library.undoableRuns()); }
void AnalyzerModel::undoDeletion() { m_parts->library.undoDeletion(); }
void AnalyzerModel::showRun(const QUuid& id) {
    if (isBusy() || !m_parts->library.show(id))
        return;
    endComparison();
    setShowsCheck(false);
}
bool AnalyzerModel::importRun(const std::filesystem::path& file) { return m_parts->library.importRun(file); }
void AnalyzerModel::importRuns(const std::vector<std::filesystem::path>& files) {
    m_parts->library.importRuns(files);
}
const QString& AnalyzerModel::refusal() const { return m_parts->refusal; }

// --- … to the comparison

bool AnalyzerModel::compareMode() const { return m_parts->comparison.mode(); }
bool AnalyzerModel::canCompare() const { return m_parts->comparison.canCompare(); }
void AnalyzerModel::toggleCompareMode() { m_parts->comparison.toggleMode(); }
const std::set<QUuid>& AnalyzerModel::compareSelection() const { return m_parts->comparison.selection(); }
void AnalyzerModel::toggleCompareSelection(const QUuid& id) { m_parts->comparison.toggleSelection(id); }
std::vector<RunRecord> AnalyzerModel::comparableRuns() const { return m_parts->comparison.comparableRuns(); }
const std::optional<std::vector<RunRecord>>& AnalyzerModel::comparison() const {
    return m_parts->comparison.runs();
}
void AnalyzerModel::beginComparison() { m_parts->comparison.begin(); }
bool AnalyzerModel::hasLastOfVolume(const QUuid& id) const {
    return m_parts->comparison.lastOfVolume(id).has_value();
}
void AnalyzerModel::compareWithLast(const QUuid& id) { m_parts->comparison.beginWithLast(id); }
void AnalyzerModel::endComparison() { m_parts->comparison.end(); }
int AnalyzerModel::comparisonReference() const { return static_cast<int>(m_parts->comparison.reference()); }
void AnalyzerModel::setComparisonReference(int index) {
    m_parts->comparison.setReference(static_cast<std::size_t>(index));
}

} // namespace TarnwickKit::model
