#pragma once

#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <QDateTime>
#include <QMetaType>
#include <QString>
#include <QUuid>

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace TarnwickKit::model {

/// The types of file systems that count as network volumes, in lower case.
inline constexpr std::array<std::string_view, 6> networkFilesystems{"smbfs",  "nfs",  "afpfs",
                                                                    "webdav", "cifs", "ftp"};
/// Whether a type, in any case, is among them.
bool isNetworkFilesystem(const QString& filesystemType);

/// A text of a record that shows something. A record from elsewhere may hold one of blanks and control
/// characters, which counts as absent.
std::optional<QString> visibleText(const std::optional<QString>& text);

/// One saved point of a curve.
struct RunSample {
    double t = 0; ///< seconds since the start of the test
    double v = 0; ///< bytes per second

    bool operator==(const RunSample&) const = default;
};

/// The lasting form of a finished run: the headline figures, a thinned pair of curves, the facts of the
/// volume at the time, and the settings. What the history keeps, what panes and images show, what a run file
/// carries. Units: rates in bytes per second, sizes in bytes, times in seconds. `id` alone identifies a run.
struct RunRecord {
    /// How the volume was attached.
    enum class Kind { internalDrive, external, network };

    QUuid id;
    QString volumeName;
    QString connection; ///< "Internal", "External", "Removable" or "Network"
    QDateTime date;     ///< when the run began
    double duration = 0;
    std::optional<double> writeBps; ///< sustained
    std::optional<double> writePeakBps;
    std::optional<double> writeMinBps;
    std::optional<double> readBps; ///< sustained
    std::optional<double> readPeakBps;
    std::optional<double> readMinBps;
    std::optional<double> randomReadBps;
    std::optional<double> randomWriteBps;
    std::optional<double> randomReadIOPS;
    std::optional<double> randomWriteIOPS;
    std::optional<double> fileOpsPerSec; ///< file creations per second
    std::vector<RunSample> writeSamples;
    std::vector<RunSample> readSamples;
    std::optional<QString> fsType;
    std::optional<std::int64_t> optimalIO;
    std::optional<std::int64_t> blockSize;
    std::optional<std::int64_t> maxName;
    std::optional<std::int64_t> capacityBytes;
    std::optional<std::int64_t> freeBytes; ///< when the run began
    std::optional<QString> sizeLabel;      ///< the test's size in words
    std::optional<std::int64_t> writeBlock;
    std::optional<std::int64_t> readBlock;
    std::optional<std::int64_t> randomBlock;
    std::optional<bool> bypassCache;
    std::optional<QString> deviceModel;
    std::optional<QString> deviceProtocol; ///< the bus, or a network volume's protocol
    Kind kind = Kind::internalDrive;
    std::optional<QString> customTitle; ///< the user's own

    using IdentityOf = std::function<DriveIdentity(const std::filesystem::path& volumeURL)>;
    static DriveIdentity identityOf(const std::filesystem::path& volumeURL);

    /// The record of a run. `duration`: absent is the sum of the tests' durations without the file
    /// operations'. Threads: any; blocks on asking for the drive's names. Fails: never, what is missing is
    /// absent. A clock that was set back during the run gives a duration of 0.
    static RunRecord from(const OndelCore::benchmark::BenchmarkResult& result,
                          const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                          const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                          const QDateTime& date, const OndelCore::benchmark::BenchmarkPlan& plan,
                          std::optional<double> duration = std::nullopt,
                          const IdentityOf& driveIdentity = identityOf);

    /// What lists call the run: the user's title, else the volume's name, else "Volume".
    QString title() const;
    /// The headline of report images. Never without a visible character, as `title`.
    QString screenshotTitle() const;
    /// The second line of report images.
    QString screenshotSubtitle() const;

    /// The title out of what the user typed: without blanks around it and at most 60 characters as people
    /// count them. Absent, which clears a title, if nothing is left.
    static std::optional<QString> customTitleFrom(const QString& text);

    bool operator==(const RunRecord&) const = default;
};

} // namespace TarnwickKit::model

template <>
struct std::hash<TarnwickKit::model::RunRecord> {
    std::size_t operator()(const TarnwickKit::model::RunRecord& run) const noexcept;
};

Q_DECLARE_METATYPE(TarnwickKit::model::RunRecord)
