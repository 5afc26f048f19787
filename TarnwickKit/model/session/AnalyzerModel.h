#pragma once

#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnalyzerSettings.h"
#include "TarnwickKit/model/session/AnalyzerTarget.h"
#include "TarnwickKit/model/session/RunComparison.h"
#include "TarnwickKit/model/session/RunLibrary.h"
#include "TarnwickKit/model/session/RunSession.h"

#include <QTimer>
#include <QUrl>

namespace TarnwickKit::model {

/// The application's central object: settings, target, run, stored runs and their comparison.
///
/// Views read its properties and make one call per action of the user; every change is announced. It forwards
/// to four objects that it owns, and decides what concerns several of them. Properties carry what a
/// declarative view can bind to, as those of AnalyzerSettings do; an absent text or test is "".
///
/// Threads: the one that makes it, which must run an event loop.
/// Owner: a run. The destructor ends a run and waits until the engine has cleaned up.
class AnalyzerModel : public TarnwickKit::model::AnalyzerSettings { // moc needs the full name
    Q_OBJECT

public:
    /// The names are upper case because declarative views require it.
    enum class Phase { Idle, Running, Done, Failed };
    Q_ENUM(Phase)

    explicit AnalyzerModel(AnalyzerServices services = AnalyzerServices::real(), QObject* parent = nullptr);

    // --- Target: see AnalyzerTarget

    /// The folder under test; "" while none is chosen.
    Q_PROPERTY(QString targetFolder READ targetFolderText NOTIFY targetFolderChanged)
    const std::optional<std::filesystem::path>& targetFolder() const { return m_target.folder(); }
    QString targetFolderText() const;
    Q_SIGNAL void targetFolderChanged();

    /// Makes `folder` the target and sets the sequential block sizes to what suits its file system. Does
    /// nothing during a run.
    void select(const std::filesystem::path& folder);
    /// The same for a local file URL. Any other URL is ignored.
    Q_INVOKABLE void select(const QUrl& folder);
    /// Selects a folder of the volume that can be written to (see BenchmarkTarget::folder).
    Q_INVOKABLE void selectVolume(const QUrl& mountPoint);
    /// Asks for a folder, beginning at the target or, without one, wherever the dialog likes, and selects it.
    Q_INVOKABLE void chooseFolder();
    void chooseFolder(const std::optional<std::filesystem::path>& startingAt);
    /// The mounted volumes, in the system's order. Blocks for half a second at most.
    static std::vector<VolumeMenuItem> mountedVolumeItems();

    const std::optional<OndelCore::volumes::VolumeInfo>& volumeInfo() const { return m_target.facts().info; }
    const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities() const {
        return m_target.facts().capabilities;
    }
    Q_SIGNAL void volumeChanged();
    bool isNetworkVolume() const { return m_target.facts().isOnNetwork(); }
    QString connectionLabel() const { return m_target.facts().connectionLabel(); }
    Q_PROPERTY(QString selectedVolumeIcon READ selectedVolumeIcon NOTIFY volumeChanged)
    QString selectedVolumeIcon() const { return m_target.facts().icon(); }
    RunRecord::Kind selectedVolumeKind() const { return m_target.facts().kind(); }

    /// The health of the target's drive, read by each selection and after each run.
    const std::optional<OndelCore::health::DiskSMART>& smart() const { return m_target.smart(); }
    Q_SIGNAL void smartChanged();
    Q_INVOKABLE void exportSMART() { m_target.exportSMART(); }
    void setDialogs(AnalyzerDialogs* dialogs) { m_target.setDialogs(dialogs); }

    // --- Run: see RunSession

    Q_PROPERTY(TarnwickKit::model::AnalyzerModel::Phase phase READ phase NOTIFY phaseChanged)
    Phase phase() const { return m_phase; }
    /// One sentence for people; empty unless `phase` is Failed.
    Q_PROPERTY(QString failureMessage READ failureMessage NOTIFY phaseChanged)
    const QString& failureMessage() const { return m_failure.message; }
    /// A second sentence, in plainer words; "" without one.
    Q_PROPERTY(QString failureExplanation READ failureExplanation NOTIFY phaseChanged)
    const QString& failureExplanation() const { return m_failure.explanation; }
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY phaseChanged)
    bool isRunning() const { return m_phase == Phase::Running; }
    Q_SIGNAL void phaseChanged();
    /// A target and a test are chosen, and there is no run.
    Q_PROPERTY(bool canRun READ canRun NOTIFY canRunChanged)
    bool canRun() const { return targetFolder() && !selectedTests().empty() && !isRunning(); }
    Q_SIGNAL void canRunChanged();

    Q_PROPERTY(QString liveTest READ liveTestName NOTIFY liveTestChanged)
    std::optional<OndelCore::benchmark::BenchmarkTest> liveTest() const { return m_session.liveTest(); }
    QString liveTestName() const;
    Q_PROPERTY(QString liveTestTitle READ liveTestTitle NOTIFY liveTestTitleChanged)
    QString liveTestTitle() const;
    Q_SIGNAL void liveTestChanged();
    Q_SIGNAL void liveTestTitleChanged();
    static constexpr std::size_t maxLiveSamples = RunSession::maxLiveSamples;
    const std::vector<RunSession::Sample>& liveSamples() const { return m_session.liveSamples(); }
    Q_SIGNAL void liveSamplesChanged();
    const std::vector<RunSession::Temperature>& liveTemperatures() const {
        return m_session.liveTemperatures();
    }
    Q_SIGNAL void liveTemperaturesChanged();
    Q_PROPERTY(double completedBytes READ completedBytesNumber NOTIFY progressChanged)
    std::int64_t completedBytes() const { return m_session.completedBytes(); }
    Q_PROPERTY(double totalBytes READ totalBytesNumber NOTIFY progressChanged)
    std::int64_t totalBytes() const { return m_session.totalBytes(); }
    const LiveProgress& liveProgress() const { return m_session.liveProgress(); }
    Q_SIGNAL void progressChanged();
    const std::optional<OndelCore::benchmark::BenchmarkResult>& result() const { return m_session.result(); }
    Q_SIGNAL void resultChanged();

    /// Begins a run. Does nothing without a target, or during a run; it does not check canRun.
    Q_INVOKABLE void start() { m_session.start(makePlan()); }
    /// Asks the run to end. The phase stays Running until the engine has cleaned up, then it is Idle.
    Q_INVOKABLE void cancel() { m_session.cancel(); }
    QFuture<void> cancelAndWait() { return m_session.cancelAndWait(); }
    void abandonRun() { m_session.abandon(); }
    void apply(const OndelCore::benchmark::BenchmarkProgress& progress) { m_session.apply(progress); }

    /// The figure in a test's sidebar row.
    std::optional<QString> sidebarValue(OndelCore::benchmark::BenchmarkTest test) const;
    /// The same for all tests in their order, "" where there is none.
    Q_PROPERTY(QStringList sidebarValues READ sidebarValues NOTIFY resultChanged)
    QStringList sidebarValues() const;
    /// Which of these figures are known not to be the disk's.
    Q_PROPERTY(QList<bool> sidebarMarks READ sidebarMarks NOTIFY resultChanged)
    QList<bool> sidebarMarks() const;
    /// The sentence for people about a run that failed.
    static QString describe(const std::exception& error);

    // --- Stored runs: see RunLibrary

    HistoryStore& history() { return m_library.history(); }
    const HistoryStore& history() const { return m_library.history(); }
    /// The run that the main pane shows.
    const std::optional<RunRecord>& currentRun() const { return m_library.currentRun(); }
    Q_SIGNAL void currentRunChanged();
    Q_PROPERTY(bool currentRunCollapsed READ currentRunCollapsed WRITE setCurrentRunCollapsed NOTIFY
                   currentRunCollapsedChanged)
    bool currentRunCollapsed() const { return m_library.currentRunCollapsed(); }
    void setCurrentRunCollapsed(bool collapsed) { m_library.setCurrentRunCollapsed(collapsed); }
    Q_SIGNAL void currentRunCollapsedChanged();
    std::vector<RunRecord> previousRuns() const { return m_library.previousRuns(); }
    Q_SIGNAL void previousRunsChanged();
    const std::set<QUuid>& expandedRunIDs() const { return m_library.expandedRunIDs(); }
    Q_INVOKABLE void setRunExpanded(const QUuid& id, bool expanded) {
        m_library.setRunExpanded(id, expanded);
    }
    Q_SIGNAL void expandedRunIDsChanged();
    Q_INVOKABLE void deleteRun(const QUuid& id) { m_library.deleteRun(id); }
    Q_INVOKABLE void renameRun(const QUuid& id, const QString& text) { m_library.renameRun(id, text); }
    Q_INVOKABLE void clearHistory() { m_library.clear(); }
    Q_PROPERTY(int undoableRuns READ undoableRuns NOTIFY undoableRunsChanged)
    int undoableRuns() const { return static_cast<int>(m_library.undoableRuns()); }
    Q_INVOKABLE void undoDeletion() { m_library.undoDeletion(); }
    Q_SIGNAL void undoableRunsChanged();
    /// Stores the run of a file and, unless there is a run under way, shows it.
    /// Fails: false, with a line in the log and nothing changed.
    bool importRun(const std::filesystem::path& file) { return m_library.importRun(file); }
    /// The same for several files in order, with one change of the history. The last readable one is shown.
    /// The files are read on another thread, and stored later from the event loop.
    void importRuns(const std::vector<std::filesystem::path>& files) { m_library.importRuns(files); }

    /// One sentence about what has just been asked for and cannot be opened; "" some seconds later.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)
    const QString& refusal() const { return m_refusal; }
    /// Tells of things that are neither folders nor runs. `names`: one or more.
    void refuse(const std::vector<std::string>& names);
    Q_SIGNAL void refusalChanged();

    // --- Comparison: see RunComparison

    Q_PROPERTY(bool compareMode READ compareMode NOTIFY compareModeChanged)
    bool compareMode() const { return m_comparison.mode(); }
    Q_PROPERTY(bool canCompare READ canCompare NOTIFY previousRunsChanged)
    bool canCompare() const { return m_comparison.canCompare(); }
    Q_INVOKABLE void toggleCompareMode() { m_comparison.toggleMode(); }
    Q_SIGNAL void compareModeChanged();
    Q_PROPERTY(int compareSelectionCount READ compareSelectionCount NOTIFY compareSelectionChanged)
    const std::set<QUuid>& compareSelection() const { return m_comparison.selection(); }
    int compareSelectionCount() const { return static_cast<int>(compareSelection().size()); }
    Q_INVOKABLE void toggleCompareSelection(const QUuid& id) { m_comparison.toggleSelection(id); }
    Q_SIGNAL void compareSelectionChanged();
    std::vector<RunRecord> comparableRuns() const { return m_comparison.comparableRuns(); }
    Q_PROPERTY(bool isComparing READ isComparing NOTIFY comparisonChanged)
    const std::optional<std::vector<RunRecord>>& comparison() const { return m_comparison.runs(); }
    bool isComparing() const { return comparison().has_value(); }
    Q_INVOKABLE void beginComparison() { m_comparison.begin(); }
    /// Whether there is an earlier run of the same volume; changes with canCompare.
    Q_INVOKABLE bool hasLastOfVolume(const QUuid& id) const {
        return m_comparison.lastOfVolume(id).has_value();
    }
    Q_INVOKABLE void compareWithLast(const QUuid& id) { m_comparison.beginWithLast(id); }
    Q_SIGNAL void comparisonBegan();
    Q_INVOKABLE void endComparison() { m_comparison.end(); }
    Q_SIGNAL void comparisonChanged();
    /// The index of the compared run that differences are relative to.
    Q_PROPERTY(int comparisonReference READ comparisonReference WRITE setComparisonReference NOTIFY
                   comparisonReferenceChanged)
    int comparisonReference() const { return static_cast<int>(m_comparison.reference()); }
    void setComparisonReference(int index) { m_comparison.setReference(static_cast<std::size_t>(index)); }
    Q_SIGNAL void comparisonReferenceChanged();

private:
    // The properties' views of the 64-bit numbers.
    double completedBytesNumber() const { return static_cast<double>(completedBytes()); }
    double totalBytesNumber() const { return static_cast<double>(totalBytes()); }

    void forwardSignals();
    void connectParts();
    void runStarted();
    void runEnded(RunSession::Outcome outcome, const RunFailure& failure);
    void setPhase(Phase phase, const RunFailure& failure = {});
    void announceCanRun();
    void tellRefusal(const QString& sentence);

    const AnalyzerServices m_services;
    AnalyzerTarget m_target{m_services};
    RunLibrary m_library{m_services.historyFolder};
    RunComparison m_comparison{m_library};
    RunSession m_session{m_services, m_target};

    Phase m_phase = Phase::Idle;
    RunFailure m_failure;
    bool m_couldRun = false;
    QString m_refusal;
    QTimer m_refusalClock;
};

} // namespace TarnwickKit::model
