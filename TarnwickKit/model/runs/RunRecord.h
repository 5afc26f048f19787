#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/Hashing.h"
#include "OndelCore/benchmark/BenchmarkPlan.h"
#include "OndelCore/benchmark/BenchmarkResult.h"
#include "OndelCore/benchmark/evidence/Remark.h"
#include "OndelCore/volumes/VolumeCapabilities.h"
#include "OndelCore/volumes/VolumeInfo.h"
#include "TarnwickKit/model/runs/DriveIdentity.h"
#include "TarnwickKit/model/runs/RunEvidence.h"

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
ONDEL_PUBLIC bool isNetworkFilesystem(const QString& filesystemType);

/// A text with a visible character. A record from elsewhere may hold a text of blanks and control characters,
/// which counts as absent.
ONDEL_PUBLIC std::optional<QString> visibleText(const std::optional<QString>& text);

/// Whether a test's figures are not those of the disk: a remark on the test or on the whole run is invalid.
ONDEL_PUBLIC bool isInvalid(const std::vector<OndelCore::benchmark::Remark>& remarks,
                            OndelCore::benchmark::BenchmarkTest test);

/// One saved point of a curve.
struct RunSample {
    double t = 0; ///< seconds since the start of the test
    double v = 0; ///< bytes per second

    bool operator==(const RunSample&) const = default;
    std::size_t hash() const { return OndelCore::hashFields(t, v); }
};

/// The lasting form of a finished run: headline figures, thinned curves, facts of the volume at the time, and
/// settings. The history keeps it, panes and images show it, run files carry it. `id` alone identifies a run.
/// Units: rates in bytes per second, sizes in bytes, times in seconds.
struct ONDEL_PUBLIC RunRecord {
    /// How the volume was attached.
    enum class Kind { internalDrive, external, network };

    QUuid id;
    QString volumeName;
    QString connection; ///< "Internal", "External", "Removable" or "Network"; connectionText is for people
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
    std::optional<QString> customTitle;  ///< the user's own
    std::optional<QString> kernel;       ///< the system's release
    std::optional<QString> version;      ///< of the program that measured
    std::optional<RunEvidence> evidence; ///< absent: not recorded
    /// What the evidence says about the figures, worst first; empty: nothing. Absent: not recorded.
    std::optional<std::vector<OndelCore::benchmark::Remark>> remarks;

    /// Asks a volume for its drive's names.
    using IdentityOf = std::function<DriveIdentity(const std::filesystem::path& volumeURL)>;
    /// The machine's answer. Threads: any; blocks on the system. Fails: no names.
    static DriveIdentity identityOf(const std::filesystem::path& volumeURL);

    /// The record of a run, which always has evidence and remarks. `duration`: if absent, the sum of the
    /// durations of all tests but the file operations; a negative one, from a clock that was set back,
    /// becomes 0. Threads: any; blocks on asking for the drive's names. Fails: never; what is missing is
    /// absent.
    static RunRecord from(const OndelCore::benchmark::BenchmarkResult& result,
                          const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                          const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                          const QDateTime& date, const OndelCore::benchmark::BenchmarkPlan& plan,
                          std::optional<double> duration = std::nullopt,
                          const IdentityOf& driveIdentity = identityOf);

    /// The record with 80 to 159 points left of each curve that had more, and of the circumstances' samples.
    RunRecord withThinnedCurves() const;

    /// Whether a test's figures are known not to be those of the disk.
    bool isInvalid(OndelCore::benchmark::BenchmarkTest test) const {
        return remarks && model::isInvalid(*remarks, test);
    }

    /// What lists call the run: the user's title, else the volume's name, else "Volume".
    QString title() const;
    /// The headline of report images. Like `title`, it always has a visible character.
    QString screenshotTitle() const;
    /// The second line of report images.
    QString screenshotSubtitle() const;

    /// The title for what the user typed: trimmed, and at most 60 characters as people count them. Absent,
    /// which clears a title, if nothing is left.
    static std::optional<QString> customTitleFrom(const QString& text);

    bool operator==(const RunRecord&) const = default;
    std::size_t hash() const;
};

} // namespace TarnwickKit::model

Q_DECLARE_METATYPE(TarnwickKit::model::RunRecord)
