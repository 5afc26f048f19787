#include "TarnwickKit/model/session/AnalyzerModel.h"

#include "OndelCore/volumes/FileUrl.h"
#include "TarnwickKit/model/format/BenchmarkText.h"
#include "TarnwickKit/model/format/DisplayText.h"
#include "TarnwickKit/model/session/PropertyChange.h"

#include <QFile>
#include <QPointer>

#include <algorithm>
#include <chrono>
#include <utility>

namespace TarnwickKit::model {

using OndelCore::benchmark::BenchmarkTest;
using OndelCore::volumes::localPath;

AnalyzerModel::AnalyzerModel(AnalyzerServices services, QObject* parent)
    : AnalyzerSettings(parent)
    , m_services(std::move(services)) {
    forwardSignals();
    connectParts();
}

void AnalyzerModel::forwardSignals() {
    const auto forward = [this](auto& part, auto from, void (AnalyzerModel::*to)()) {
        connect(&part, from, this, to);
    };
    forward(m_target, &AnalyzerTarget::folderChanged, &AnalyzerModel::targetFolderChanged);
    forward(m_target, &AnalyzerTarget::factsChanged, &AnalyzerModel::volumeChanged);
    forward(m_target, &AnalyzerTarget::smartChanged, &AnalyzerModel::smartChanged);
    forward(m_session, &RunSession::resultChanged, &AnalyzerModel::resultChanged);
    forward(m_session, &RunSession::liveTestChanged, &AnalyzerModel::liveTestTitleChanged);
    forward(m_session, &RunSession::liveTestChanged, &AnalyzerModel::liveTestChanged);
    forward(*this, &AnalyzerModel::randomBlockChanged, &AnalyzerModel::liveTestTitleChanged);
    forward(m_session, &RunSession::liveSamplesChanged, &AnalyzerModel::liveSamplesChanged);
    forward(m_session, &RunSession::liveTemperaturesChanged, &AnalyzerModel::liveTemperaturesChanged);
    forward(m_session, &RunSession::progressChanged, &AnalyzerModel::progressChanged);
    forward(m_library, &RunLibrary::currentRunChanged, &AnalyzerModel::currentRunChanged);
    forward(m_library, &RunLibrary::currentRunCollapsedChanged, &AnalyzerModel::currentRunCollapsedChanged);
    forward(m_library, &RunLibrary::previousRunsChanged, &AnalyzerModel::previousRunsChanged);
    forward(m_library, &RunLibrary::expandedRunIDsChanged, &AnalyzerModel::expandedRunIDsChanged);
    forward(m_library, &RunLibrary::undoableRunsChanged, &AnalyzerModel::undoableRunsChanged);
    forward(m_comparison, &RunComparison::modeChanged, &AnalyzerModel::compareModeChanged);
    forward(m_comparison, &RunComparison::selectionChanged, &AnalyzerModel::compareSelectionChanged);
    forward(m_comparison, &RunComparison::runsChanged, &AnalyzerModel::comparisonChanged);
    forward(m_comparison, &RunComparison::began, &AnalyzerModel::comparisonBegan);
    forward(m_comparison, &RunComparison::referenceChanged, &AnalyzerModel::comparisonReferenceChanged);
}

void AnalyzerModel::connectParts() {
    connect(this, &AnalyzerModel::targetFolderChanged, this, &AnalyzerModel::announceCanRun);
    connect(this, &AnalyzerModel::selectedTestsChanged, this, &AnalyzerModel::announceCanRun);
    connect(&m_target, &AnalyzerTarget::factsTaken, this,
            [this] { setOptimalBlock(m_target.facts().suitableBlock()); });
    connect(&m_session, &RunSession::started, this, &AnalyzerModel::runStarted);
    connect(&m_session, &RunSession::recorded, &m_library, &RunLibrary::add);
    connect(&m_session, &RunSession::ended, this, &AnalyzerModel::runEnded);
    connect(&m_library, &RunLibrary::currentRunChanged, this, [this] {
        if (!currentRun() && m_phase == Phase::Done)
            setPhase(Phase::Idle);
    });
    connect(&m_library, &RunLibrary::shownAgain, this, [this] { setPhase(Phase::Done); });
    connect(&m_library, &RunLibrary::unreadable, this, [this](const auto& files) {
        std::vector<std::string> names;
        names.reserve(files.size());
        for (const std::filesystem::path& file : files)
            names.push_back(file.filename());
        tellRefusal(model::refusal(names, true));
    });
    constexpr std::chrono::seconds readingTime(8);
    m_refusalClock.setInterval(readingTime);
    m_refusalClock.setSingleShot(true);
    connect(&m_refusalClock, &QTimer::timeout, this, [this] { tellRefusal({}); });
    connect(&m_library, &RunLibrary::importShown, this, [this] {
        m_session.setResult(std::nullopt);
        setPhase(Phase::Done);
    });
}

void AnalyzerModel::announceCanRun() {
    changeProperty(*this, m_couldRun, canRun(), &AnalyzerModel::canRunChanged);
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
    if (isRunning())
        return;
    m_target.select(folder);
    setPhase(currentRun() ? Phase::Done : Phase::Idle);
    m_session.clearLiveCurves();
}

void AnalyzerModel::selectVolume(const QUrl& mountPoint) {
    if (const auto volume = localPath(mountPoint))
        select(m_target.folderOn(*volume));
}

void AnalyzerModel::chooseFolder() { chooseFolder(targetFolder()); }

void AnalyzerModel::chooseFolder(const std::optional<std::filesystem::path>& startingAt) {
    m_target.askForFolder(startingAt, [model = QPointer(this)](const std::filesystem::path& folder) {
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
    m_library.setCurrentRun(std::nullopt);
}

void AnalyzerModel::runEnded(RunSession::Outcome outcome, const RunFailure& failure) {
    switch (outcome) {
    case RunSession::Outcome::finished:
        return setPhase(Phase::Done);
    case RunSession::Outcome::cancelled:
        return setPhase(Phase::Idle);
    case RunSession::Outcome::failed:
        return setPhase(Phase::Failed, failure);
    }
}

void AnalyzerModel::setPhase(Phase phase, const RunFailure& failure) {
    if (m_phase == phase && m_failure == failure)
        return;
    m_phase = phase;
    m_failure = failure;
    m_library.setShowsImports(!isRunning());
    Q_EMIT phaseChanged();
    announceCanRun();
}

void AnalyzerModel::refuse(const std::vector<std::string>& names) {
    tellRefusal(model::refusal(names, false));
}

void AnalyzerModel::tellRefusal(const QString& sentence) {
    m_refusalClock.start();
    changeProperty(*this, m_refusal, sentence, &AnalyzerModel::refusalChanged);
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
        marks.append(sidebarValue(test) && isInvalid(m_session.remarks(), test));
    return marks;
}

QString AnalyzerModel::describe(const std::exception& error) { return model::describe(error); }

} // namespace TarnwickKit::model
