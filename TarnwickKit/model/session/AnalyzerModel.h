#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerDialogs.h"
#include "TarnwickKit/model/session/AnalyzerSettings.h"
#include "TarnwickKit/model/session/LiveProgress.h"
#include "TarnwickKit/model/session/VolumeMenuItem.h"

#include <QFuture>
#include <QUrl>

#include <cstddef>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace OndelCore::capacity {
struct CapacityPlan;
}

namespace TarnwickKit::model {

class CapacityChecks;
class CapacitySession;
struct AnalyzerServices;
struct RunFailure;

/// The application's central object: settings, target, run, stored runs and their comparison.
///
/// Views read its properties and make one call per action of the user; every change is announced. It forwards
/// to the objects that it owns, and decides what concerns several of them. Properties carry what a
/// declarative view can bind to, as those of AnalyzerSettings do; an absent text or test is "".
///
/// Threads: the one that makes it, which must run an event loop.
/// Owner: a run. The destructor ends a run and waits until the engine has cleaned up.
class ONDEL_PUBLIC AnalyzerModel : public TarnwickKit::model::AnalyzerSettings { // moc needs the full name
    Q_OBJECT

public:
    /// The names are upper case because declarative views require it.
    enum class Phase { Idle, Running, Done, Failed };
    Q_ENUM(Phase)

    /// On this machine.
    explicit AnalyzerModel(QObject* parent = nullptr);
    /// With other answers than the machine's: for this project's tests and bench.
    explicit AnalyzerModel(const AnalyzerServices& services, QObject* parent = nullptr);
    ~AnalyzerModel() override;

    // --- Target: see AnalyzerTarget

    /// The folder under test; "" while none is chosen.
    Q_PROPERTY(QString targetFolder READ targetFolderText NOTIFY targetFolderChanged)
    const std::optional<std::filesystem::path>& targetFolder() const;
    QString targetFolderText() const;
    Q_SIGNAL void targetFolderChanged();

    /// Makes `folder` the target and sets the sequential block sizes to what suits its file system. Does
    /// nothing during a run or a check.
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

    const std::optional<OndelCore::volumes::VolumeInfo>& volumeInfo() const;
    const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities() const;
    Q_SIGNAL void volumeChanged();
    bool isNetworkVolume() const;
    QString connectionLabel() const;
    Q_PROPERTY(QString selectedVolumeIcon READ selectedVolumeIcon NOTIFY volumeChanged)
    QString selectedVolumeIcon() const;
    RunRecord::Kind selectedVolumeKind() const;

    /// The health of the target's drive, read by each selection and after each run.
    const std::optional<OndelCore::health::DiskSMART>& smart() const;
    Q_SIGNAL void smartChanged();
    /// Asks where to, and writes the health as a text file there. Fails: showError of the dialogs.
    Q_INVOKABLE void exportSMART();
    /// Owner: the caller, until it sets others or null.
    void setDialogs(AnalyzerDialogs* dialogs);

    // --- Run: see RunSession

    Q_PROPERTY(TarnwickKit::model::AnalyzerModel::Phase phase READ phase NOTIFY phaseChanged)
    Phase phase() const;
    /// One sentence for people; empty unless `phase` is Failed.
    Q_PROPERTY(QString failureMessage READ failureMessage NOTIFY phaseChanged)
    const QString& failureMessage() const;
    /// A second sentence, in plainer words; "" without one.
    Q_PROPERTY(QString failureExplanation READ failureExplanation NOTIFY phaseChanged)
    const QString& failureExplanation() const;
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY phaseChanged)
    bool isRunning() const;
    Q_SIGNAL void phaseChanged();
    /// A target and a test are chosen, and there is neither a run nor a check.
    Q_PROPERTY(bool canRun READ canRun NOTIFY canRunChanged)
    bool canRun() const { return targetFolder() && !selectedTests().empty() && !isBusy(); }
    Q_SIGNAL void canRunChanged();

    Q_PROPERTY(QString liveTest READ liveTestName NOTIFY liveTestChanged)
    std::optional<OndelCore::benchmark::BenchmarkTest> liveTest() const;
    QString liveTestName() const;
    Q_PROPERTY(QString liveTestTitle READ liveTestTitle NOTIFY liveTestTitleChanged)
    QString liveTestTitle() const;
    Q_SIGNAL void liveTestChanged();
    Q_SIGNAL void liveTestTitleChanged();
    static constexpr std::size_t maxLiveSamples = 2000;
    const std::vector<OndelCore::benchmark::ThroughputSample>& liveSamples() const;
    Q_SIGNAL void liveSamplesChanged();
    const std::vector<TemperaturePoint>& liveTemperatures() const;
    Q_SIGNAL void liveTemperaturesChanged();
    Q_PROPERTY(double completedBytes READ completedBytesNumber NOTIFY progressChanged)
    std::int64_t completedBytes() const;
    Q_PROPERTY(double totalBytes READ totalBytesNumber NOTIFY progressChanged)
    std::int64_t totalBytes() const;
    const LiveProgress& liveProgress() const;
    Q_SIGNAL void progressChanged();
    const std::optional<OndelCore::benchmark::BenchmarkResult>& result() const;
    Q_SIGNAL void resultChanged();

    /// Begins a run. Does nothing without a target, or during a run or a check; it does not check canRun.
    Q_INVOKABLE void start();
    /// Asks the run or the check to end. The phase stays Running until the engine has cleaned up, then it is
    /// Idle.
    Q_INVOKABLE void cancel();
    /// Cancels. The future finishes on this thread when the run has ended, at once if there is none.
    QFuture<void> cancelAndWait();
    /// Cancels, and blocks until the engine has cleaned up, without any signal: for a process that ends
    /// without its event loop.
    void abandonRun();
    /// Takes in what the engine says of the run.
    void apply(const OndelCore::benchmark::BenchmarkProgress& progress);

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

    // --- Capacity check. The session tells how it goes on; it is started from here alone.

    CapacitySession& capacity();
    /// The list of past checks.
    CapacityChecks& capacityChecks();
    /// Begins a check in the target's folder and shows its pane. Does nothing without a target, or during a
    /// run or a check.
    void startCheck(const OndelCore::capacity::CapacityPlan& plan);
    Q_PROPERTY(bool isChecking READ isChecking NOTIFY busyChanged)
    bool isChecking() const;
    /// There is a run or a check: another one cannot begin, and the target stays.
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY busyChanged)
    bool isBusy() const { return isRunning() || isChecking(); }
    Q_SIGNAL void busyChanged();
    /// The main pane shows the capacity check. A run and a comparison end that.
    Q_PROPERTY(bool showsCheck READ showsCheck WRITE setShowsCheck NOTIFY showsCheckChanged)
    bool showsCheck() const;
    void setShowsCheck(bool shows);
    Q_SIGNAL void showsCheckChanged();
    /// Shows it, after asking for a folder where none is chosen. Does nothing during a run.
    void openCheck();

    // --- Stored runs: see RunLibrary

    HistoryStore& history();
    const HistoryStore& history() const;
    /// The run that the main pane shows.
    const std::optional<RunRecord>& currentRun() const;
    Q_SIGNAL void currentRunChanged();
    Q_PROPERTY(bool currentRunCollapsed READ currentRunCollapsed WRITE setCurrentRunCollapsed NOTIFY
                   currentRunCollapsedChanged)
    bool currentRunCollapsed() const;
    void setCurrentRunCollapsed(bool collapsed);
    Q_SIGNAL void currentRunCollapsedChanged();
    std::vector<RunRecord> previousRuns() const;
    Q_SIGNAL void previousRunsChanged();
    const std::set<QUuid>& expandedRunIDs() const;
    Q_INVOKABLE void setRunExpanded(const QUuid& id, bool expanded);
    Q_SIGNAL void expandedRunIDsChanged();
    /// Deleted runs can be brought back for some seconds.
    Q_INVOKABLE void deleteRun(const QUuid& id);
    /// Gives a run the title that RunRecord::customTitleFrom makes of `text`.
    Q_INVOKABLE void renameRun(const QUuid& id, const QString& text);
    Q_INVOKABLE void clearHistory();
    /// How many deleted runs can be brought back.
    Q_PROPERTY(int undoableRuns READ undoableRuns NOTIFY undoableRunsChanged)
    int undoableRuns() const;
    Q_INVOKABLE void undoDeletion();
    Q_SIGNAL void undoableRunsChanged();
    /// Shows a stored run instead of what the main pane shows. Does nothing during a run or a check, or if no
    /// run has that id.
    void showRun(const QUuid& id);
    /// Stores the run of a file and, unless there is a run under way, shows it.
    /// Fails: false, with a line in the log and nothing changed.
    bool importRun(const std::filesystem::path& file);
    /// The same for several files in order, with one change of the history. The last readable one is shown.
    /// The files are read on another thread, and stored later from the event loop.
    void importRuns(const std::vector<std::filesystem::path>& files);

    /// One sentence about what has just been asked for and cannot be opened; "" some seconds later.
    Q_PROPERTY(QString refusal READ refusal NOTIFY refusalChanged)
    const QString& refusal() const;
    /// Tells of things that are neither folders nor runs. `names`: one or more.
    void refuse(const std::vector<std::string>& names);
    Q_SIGNAL void refusalChanged();

    // --- Comparison: see RunComparison

    Q_PROPERTY(bool compareMode READ compareMode NOTIFY compareModeChanged)
    bool compareMode() const;
    Q_PROPERTY(bool canCompare READ canCompare NOTIFY previousRunsChanged)
    bool canCompare() const;
    Q_INVOKABLE void toggleCompareMode();
    Q_SIGNAL void compareModeChanged();
    Q_PROPERTY(int compareSelectionCount READ compareSelectionCount NOTIFY compareSelectionChanged)
    const std::set<QUuid>& compareSelection() const;
    int compareSelectionCount() const { return static_cast<int>(compareSelection().size()); }
    Q_INVOKABLE void toggleCompareSelection(const QUuid& id);
    Q_SIGNAL void compareSelectionChanged();
    std::vector<RunRecord> comparableRuns() const;
    Q_PROPERTY(bool isComparing READ isComparing NOTIFY comparisonChanged)
    const std::optional<std::vector<RunRecord>>& comparison() const;
    bool isComparing() const { return comparison().has_value(); }
    Q_INVOKABLE void beginComparison();
    /// Whether there is an earlier run of the same volume; changes with canCompare.
    Q_INVOKABLE bool hasLastOfVolume(const QUuid& id) const;
    Q_INVOKABLE void compareWithLast(const QUuid& id);
    Q_SIGNAL void comparisonBegan();
    Q_INVOKABLE void endComparison();
    Q_SIGNAL void comparisonChanged();
    /// The index of the compared run that differences are relative to.
    Q_PROPERTY(int comparisonReference READ comparisonReference WRITE setComparisonReference NOTIFY
                   comparisonReferenceChanged)
    int comparisonReference() const;
    void setComparisonReference(int index);
    Q_SIGNAL void comparisonReferenceChanged();

private:
    // The properties' views of the 64-bit numbers.
    double completedBytesNumber() const { return static_cast<double>(completedBytes()); }
    double totalBytesNumber() const { return static_cast<double>(totalBytes()); }

    void forwardSignals();
    void connectParts();
    void runStarted();
    void setPhase(Phase phase);
    void setPhase(Phase phase, const RunFailure& failure);
    void announceCanRun();
    void tellRefusal(const QString& sentence);

    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace TarnwickKit::model
