#pragma once

#include "OndelCore/health/DiskSMART.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/RunRecord.h"
#include "TarnwickKit/model/session/AnalyzerDialogs.h"
#include "TarnwickKit/model/session/AnalyzerServices.h"
#include "TarnwickKit/model/session/AnswerLater.h"
#include "TarnwickKit/model/session/VolumeMenuItem.h"

#include <QFuture>
#include <QObject>
#include <QString>

#include <filesystem>
#include <map>
#include <optional>
#include <vector>

namespace TarnwickKit::model {

/// What is known of a target's volume. Both are absent while the volume does not answer.
struct VolumeFacts {
    std::optional<OndelCore::volumes::VolumeInfo> info;
    std::optional<OndelCore::volumes::VolumeCapabilities> capabilities;

    bool isOnNetwork() const;
    /// "Network", "Removable", "Internal", "External"; "--" without facts.
    QString connectionLabel() const;
    /// A symbol's name.
    QString icon() const;
    RunRecord::Kind kind() const;
    /// The block size that suits the file system. Units: bytes.
    std::optional<std::int64_t> suitableBlock() const;
};

/// The folder under test, and what is known of its volume and drive.
/// Threads: the one that makes it, which runs an event loop. Owner: the caller keeps `services` alive.
class AnalyzerTarget : public QObject {
    Q_OBJECT

public:
    explicit AnalyzerTarget(const AnalyzerServices& services, QObject* parent = nullptr);

    /// Absent while none is chosen.
    const std::optional<std::filesystem::path>& folder() const { return m_folder; }
    Q_SIGNAL void folderChanged();

    /// Selects a folder, or the one behind it (see folderBehindPortal). Asks for the facts of its volume; in
    /// the background it removes what killed runs left there and reads the drive's health. Selecting the same
    /// folder again repeats all of it. Blocks for `volumePatience` at most; later facts are taken when they
    /// arrive.
    void select(const std::filesystem::path& folder);
    /// The folder to test on the volume mounted at `mountPoint`. Blocks as `select`.
    std::filesystem::path folderOn(const std::filesystem::path& mountPoint) const;
    /// Asks people for a folder. `chosen` is not called if they dismiss the dialog.
    void askForFolder(const std::optional<std::filesystem::path>& startingAt, AnalyzerDialogs::Chosen chosen);

    /// The removal of leftovers in the folder, if it is under way. A run must wait for it, because it would
    /// remove the files of the run.
    std::optional<QFuture<void>> sweep() const;

    const VolumeFacts& facts() const { return m_facts; }
    /// Emitted by each selection, and for every change of the facts.
    Q_SIGNAL void factsChanged();
    /// Follows `factsChanged` when the volume has answered, or a selection stopped waiting for it.
    Q_SIGNAL void factsTaken();
    /// Waits up to `volumePatience` for facts that are still to come.
    void awaitFacts() { m_volumeQuestion.awaitAnswer(m_services.volumePatience); }
    /// Replaces what the file system claims by what a run observed.
    void learn(const OndelCore::platform::TriedAbilities& tried);

    const std::optional<OndelCore::health::DiskSMART>& smart() const { return m_smart; }
    Q_SIGNAL void smartChanged();
    /// Reads the drive's health again, in the background.
    void refreshSMART();
    /// Asks for a file's name and writes the health report there. Does nothing without a health to report.
    void exportSMART();

    /// Who asks people the questions; without one nothing is asked. Owner: the caller.
    void setDialogs(AnalyzerDialogs* dialogs) { m_dialogs = dialogs; }

private:
    void sweepOrphans();
    void askForFacts();
    void setFacts(const VolumeFacts& facts);
    void setSMART(std::optional<OndelCore::health::DiskSMART> smart);

    const AnalyzerServices& m_services;
    AnalyzerDialogs* m_dialogs = nullptr;
    std::optional<std::filesystem::path> m_folder;
    std::map<std::filesystem::path, QFuture<void>> m_sweeps; ///< under way, by folder
    VolumeFacts m_facts;
    LatestAnswer<VolumeFacts> m_volumeQuestion;
    std::optional<OndelCore::health::DiskSMART> m_smart;
    LatestAnswer<std::optional<OndelCore::health::DiskSMART>> m_healthQuestion;
};

} // namespace TarnwickKit::model
