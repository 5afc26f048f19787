#pragma once

#include "OndelCore/benchmark/BenchmarkProgress.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/HistoryStore.h"
#include "TarnwickKit/model/runs/RunFile.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerDialogs.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnalyzerSettings.h"
#include "TarnwickKit/model/session/AnswerLater.h"
#include "TarnwickKit/model/session/ProgressStream.h"
#include "TarnwickKit/model/session/VolumeMenuItem.h"

#include <QFuture>
#include <QFutureWatcher>
#include <QList>
#include <QObject>
#include <QPromise>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <QUuid>

#include <array>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <stop_token>
#include <vector>

namespace TarnwickKit::model {

/// The application's one central object: what is to be tested, the run that goes on, and what came out.
///
/// Views read its properties and make one call per action of the user; every change is announced. Properties
/// carry what a declarative view can bind to, as those of AnalyzerSettings do; an absent text or test is "".
///
/// Threads: the one that makes it, which must run an event loop.
/// Owner: a run. The destructor ends a run that goes on and waits until the engine has cleaned up behind it.
class AnalyzerModel : public TarnwickKit::model::AnalyzerSettings { // moc takes the name as it stands
    Q_OBJECT

public:
    /// A declarative view only sees names that begin with a capital.
    enum class Phase { Idle, Running, Done, Failed };
    Q_ENUM(Phase)

    explicit AnalyzerModel(AnalyzerServices services = AnalyzerServices::real(), QObject* parent = nullptr);
    ~AnalyzerModel() override;

    // --- Target

    /// The folder under test; "" while none is chosen.
    Q_PROPERTY(QString targetFolder READ targetFolderText NOTIFY targetFolderChanged)
    const std::optional<std::filesystem::path>& targetFolder() const { return m_targetFolder; }
    QString targetFolderText() const;
    Q_SIGNAL void targetFolderChanged();

    /// Makes `folder` the target: takes a picture of its volume, sets the sequential block sizes to what
    /// suits the file system, and in the background sweeps up what killed runs left and reads the drive's
    /// health. Does nothing during a run. Selecting the same folder again repeats all of it. Blocks while the
    /// volume is asked, for half a second at most; what it tells later is taken when it comes.
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

    /// Facts of the target's volume, as they were when it was selected; absent as long as it does not answer,
    /// and then those of its first answer, also during a run. Both change together.
    const std::optional<OndelCore::volumes::VolumeInfo>& volumeInfo() const { return m_volume.info; }
    const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities() const {
        return m_volume.capabilities;
    }
    Q_SIGNAL void volumeChanged();
    bool isNetworkVolume() const;
    /// "Network", "Removable", "Internal", "External"; "--" without facts of the volume.
    QString connectionLabel() const;
    Q_PROPERTY(QString selectedVolumeIcon READ selectedVolumeIcon NOTIFY volumeChanged)
    QString selectedVolumeIcon() const;
    RunRecord::Kind selectedVolumeKind() const;

    /// The health of the target's drive, read anew by a selection and after each run.
    const std::optional<OndelCore::health::DiskSMART>& smart() const { return m_smart; }
    Q_SIGNAL void smartChanged();
    /// Asks for a file's name and writes the health report there. Does nothing without a health to report.
    Q_INVOKABLE void exportSMART();

    /// Who asks people the model's questions; while there is nobody, nothing is asked. Owner: the caller.
    void setDialogs(AnalyzerDialogs* dialogs) { m_dialogs = dialogs; }

    // --- Run

    Q_PROPERTY(TarnwickKit::model::AnalyzerModel::Phase phase READ phase NOTIFY phaseChanged)
    Phase phase() const { return m_phase; }
    /// One sentence for people; empty unless `phase` is Failed.
    Q_PROPERTY(QString failureMessage READ failureMessage NOTIFY phaseChanged)
    const QString& failureMessage() const { return m_failureMessage; }
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY phaseChanged)
    bool isRunning() const { return m_phase == Phase::Running; }
    Q_SIGNAL void phaseChanged();

    /// A target and a test are chosen, and no run goes on.
    Q_PROPERTY(bool canRun READ canRun NOTIFY canRunChanged)
    bool canRun() const;
    Q_SIGNAL void canRunChanged();

    /// The test now running. It stays after a run that was cancelled or failed.
    Q_PROPERTY(QString liveTest READ liveTestName NOTIFY liveTestChanged)
    std::optional<OndelCore::benchmark::BenchmarkTest> liveTest() const { return m_liveTest; }
    QString liveTestName() const;
    Q_PROPERTY(QString liveTestTitle READ liveTestTitle NOTIFY liveTestTitleChanged)
    QString liveTestTitle() const;
    Q_SIGNAL void liveTestChanged();
    Q_SIGNAL void liveTestTitleChanged();

    /// The samples of the current test, at most maxLiveSamples: halved in density when one more comes.
    const std::vector<OndelCore::benchmark::ThroughputSample>& liveSamples() const { return m_liveSamples; }
    Q_SIGNAL void liveSamplesChanged();
    static constexpr std::size_t maxLiveSamples = 2000;

    /// Progress of the current test, in the counts of BenchmarkProgress.
    Q_PROPERTY(double completedBytes READ completedBytesNumber NOTIFY progressChanged)
    std::int64_t completedBytes() const { return m_completedBytes; }
    Q_PROPERTY(double totalBytes READ totalBytesNumber NOTIFY progressChanged)
    std::int64_t totalBytes() const { return m_totalBytes; }
    Q_SIGNAL void progressChanged();

    /// What the last finished run since launch brought.
    const std::optional<OndelCore::benchmark::BenchmarkResult>& result() const { return m_result; }
    Q_SIGNAL void resultChanged();

    /// Begins a run. Does nothing without a target, or while a run goes on; it does not look at canRun.
    Q_INVOKABLE void start();
    /// Asks the run to end. The phase stays Running until the engine has cleaned up, then it is Idle.
    Q_INVOKABLE void cancel();
    /// Cancels; the future finishes on this thread once the run has ended, at once if none goes on.
    QFuture<void> cancelAndWait();

    /// Cancels, and blocks until the engine has cleaned up: for a process that ends without its event loop.
    /// Nobody is told of the run's end.
    void abandonRun();

    /// Takes one progress event.
    void apply(const OndelCore::benchmark::BenchmarkProgress& progress);

    /// The figure that a test's sidebar row shows for `result`.
    std::optional<QString> sidebarValue(OndelCore::benchmark::BenchmarkTest test) const;
    /// The same for all tests in their order, "" where there is none.
    Q_PROPERTY(QStringList sidebarValues READ sidebarValues NOTIFY resultChanged)
    QStringList sidebarValues() const;

    /// The sentence for people about a run that failed.
    static QString describe(const std::exception& error);

    // --- Stored runs

    HistoryStore& history() { return *m_history; }
    const HistoryStore& history() const { return *m_history; }

    /// The run that the main pane shows.
    const std::optional<RunRecord>& currentRun() const { return m_currentRun; }
    Q_SIGNAL void currentRunChanged();
    Q_PROPERTY(bool currentRunCollapsed READ currentRunCollapsed WRITE setCurrentRunCollapsed NOTIFY
                   currentRunCollapsedChanged)
    bool currentRunCollapsed() const { return m_currentRunCollapsed; }
    void setCurrentRunCollapsed(bool collapsed);
    Q_SIGNAL void currentRunCollapsedChanged();

    /// The stored runs but for the one on view, newest first.
    std::vector<RunRecord> previousRuns() const;
    Q_SIGNAL void previousRunsChanged();
    const std::set<QUuid>& expandedRunIDs() const { return m_expandedRunIDs; }
    Q_INVOKABLE void setRunExpanded(const QUuid& id, bool expanded);
    Q_SIGNAL void expandedRunIDsChanged();

    Q_INVOKABLE void deleteRun(const QUuid& id);
    /// Gives a run the title that RunRecord::customTitleFrom makes of `text`.
    Q_INVOKABLE void renameRun(const QUuid& id, const QString& text);
    Q_INVOKABLE void clearHistory();

    /// Reads a run file into the history and, unless a run goes on, shows it.
    /// Fails: false, with a line in the log and nothing changed.
    bool importRun(const std::filesystem::path& file);
    /// The same for each, in their order, with one change of the history. The last one that can be read stays
    /// on view. The files are read on another thread and taken in later, from the event loop.
    void importRuns(const std::vector<std::filesystem::path>& files);

    // --- Comparison

    /// The history's rows show selection marks instead of their normal actions.
    Q_PROPERTY(bool compareMode READ compareMode NOTIFY compareModeChanged)
    bool compareMode() const { return m_compareMode; }
    /// There are two previous runs at least.
    Q_PROPERTY(bool canCompare READ canCompare NOTIFY previousRunsChanged)
    bool canCompare() const;
    Q_INVOKABLE void toggleCompareMode();
    Q_SIGNAL void compareModeChanged();

    Q_PROPERTY(int compareSelectionCount READ compareSelectionCount NOTIFY compareSelectionChanged)
    const std::set<QUuid>& compareSelection() const { return m_compareSelection; }
    int compareSelectionCount() const { return static_cast<int>(m_compareSelection.size()); }
    Q_INVOKABLE void toggleCompareSelection(const QUuid& id);
    Q_SIGNAL void compareSelectionChanged();

    /// The current run, then the previous ones.
    std::vector<RunRecord> comparableRuns() const;
    /// The runs being compared, which the main pane then shows.
    Q_PROPERTY(bool isComparing READ isComparing NOTIFY comparisonChanged)
    const std::optional<std::vector<RunRecord>>& comparison() const { return m_comparison; }
    bool isComparing() const { return m_comparison.has_value(); }
    /// Compares the runs picked, in the order of comparableRuns. Does nothing with fewer than two of them.
    Q_INVOKABLE void beginComparison();
    Q_INVOKABLE void endComparison();
    Q_SIGNAL void comparisonChanged();

private:
    struct Changes;
    struct Run;
    struct VolumeFacts {
        std::optional<OndelCore::volumes::VolumeInfo> info;
        std::optional<OndelCore::volumes::VolumeCapabilities> capabilities;
    };

    // The properties' views of the 64-bit numbers.
    double completedBytesNumber() const { return static_cast<double>(m_completedBytes); }
    double totalBytesNumber() const { return static_cast<double>(m_totalBytes); }

    void sweepOrphans(const std::filesystem::path& folder);
    void lookAtVolume(const std::filesystem::path& folder);
    void setVolume(const VolumeFacts& facts);
    void learnAbilities(const OndelCore::platform::TriedAbilities& tried);
    void refreshSMART();
    void setSMART(std::optional<OndelCore::health::DiskSMART> smart);
    void setCurrentRun(std::optional<RunRecord> run);
    void importWaitingRuns();
    void takeImported(const ImportedRuns& imported);
    void forgetMissingRuns();
    void showTitle(const QUuid& id, const std::optional<QString>& title);
    void setComparison(std::optional<std::vector<RunRecord>> runs);
    void setCompareMode(bool mode);
    void clearCompareSelection();
    void setPhase(Phase phase, const QString& failureMessage = {});
    void setLiveTest(std::optional<OndelCore::benchmark::BenchmarkTest> test);
    void setResult(std::optional<OndelCore::benchmark::BenchmarkResult> result);
    void clearLiveSamples();
    void setProgress(std::int64_t completed, std::int64_t total);
    void announceCanRun();

    Changes take(const OndelCore::benchmark::BenchmarkProgress& progress);
    void announce(const Changes& changes);
    void launch();
    void engineEnded();
    void endRun(const std::function<void()>& settle);
    void finish(OndelCore::benchmark::BenchmarkResult result);
    void fail(const std::exception& error);
    void logStart() const;

    AnalyzerServices m_services;

    std::optional<std::filesystem::path> m_targetFolder;

    Phase m_phase = Phase::Idle;
    QString m_failureMessage;
    std::optional<OndelCore::benchmark::BenchmarkTest> m_liveTest;
    std::vector<OndelCore::benchmark::ThroughputSample> m_liveSamples;
    std::int64_t m_completedBytes = 0;
    std::int64_t m_totalBytes = 0;
    std::optional<OndelCore::benchmark::BenchmarkResult> m_result;
    QDateTime m_runStart;
    bool m_couldRun = false;

    /// Sweeps under way by folder. A run waits for its folder's, which would else take the run's own files.
    std::map<std::filesystem::path, QFuture<void>> m_sweeps;
    std::shared_ptr<Run> m_run;

    AnalyzerDialogs* m_dialogs = nullptr;
    VolumeFacts m_volume;
    LatestAnswer<VolumeFacts> m_volumeQuestion;
    std::optional<OndelCore::health::DiskSMART> m_smart;
    LatestAnswer<std::optional<OndelCore::health::DiskSMART>> m_healthQuestion;

    std::optional<RunRecord> m_currentRun;
    bool m_currentRunCollapsed = false;
    std::set<QUuid> m_expandedRunIDs;
    bool m_compareMode = false;
    std::set<QUuid> m_compareSelection;
    std::optional<std::vector<RunRecord>> m_comparison;
    std::unique_ptr<HistoryStore> m_history;
    std::vector<std::filesystem::path> m_filesToImport;
    bool m_isImporting = false;
    ImportedRuns m_imported; ///< read and not yet taken in
};

} // namespace TarnwickKit::model
