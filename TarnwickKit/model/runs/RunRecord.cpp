#include "TarnwickKit/model/runs/RunRecord.h"

#include "OndelCore/Hashing.h"
#include "TarnwickKit/model/format/Format.h"
#include "TarnwickKit/model/format/VolumeText.h"
#include "TarnwickKit/model/runs/JsonFields.h"
#include "TarnwickKit/model/runs/RunFields.h"
#include "TarnwickKit/model/session/DriveInfo.h"

#include <QCoreApplication>

#include <unicode/brkiter.h>

#include <algorithm>
#include <memory>
#include <tuple>
#include <type_traits>
#include <utility>

namespace TarnwickKit::model {

using namespace Qt::StringLiterals;
using OndelCore::benchmark::BenchmarkPlan;
using OndelCore::benchmark::BenchmarkResult;
using OndelCore::benchmark::BenchmarkTest;
using OndelCore::benchmark::Remark;
using OndelCore::benchmark::RemarkWeight;
using OndelCore::benchmark::ThroughputResult;
using OndelCore::volumes::VolumeCapabilities;
using OndelCore::volumes::VolumeInfo;

namespace {

// --- A record from a run's result and the facts of its volume

/// Without facts of the volume a run counts as internal.
std::pair<QString, RunRecord::Kind> attachment(const std::optional<VolumeInfo>& volume, bool isOnNetwork) {
    if (isOnNetwork)
        return {u"Network"_s, RunRecord::Kind::network};
    if (volume && volume->isRemovable)
        return {u"Removable"_s, RunRecord::Kind::external};
    if (!volume || volume->isInternal)
        return {u"Internal"_s, RunRecord::Kind::internalDrive};
    return {u"External"_s, RunRecord::Kind::external};
}

double sumOfDurations(const BenchmarkResult& result) {
    const auto duration = [](const auto& test) { return test ? test->duration : 0; };
    return duration(result.sequentialWrite) + duration(result.sequentialRead) + duration(result.randomRead) +
           duration(result.randomWrite);
}

/// Every n-th point of a curve, so that 80 to 159 remain of 80 or more. Points are picked, not averaged; the
/// first is always kept, the last may go.
template <typename Sample>
std::vector<Sample> thinned(const std::vector<Sample>& samples) {
    constexpr std::size_t target = 80;
    const std::size_t step = samples.size() < target ? 1 : samples.size() / target;
    std::vector<Sample> kept;
    kept.reserve(samples.size() / step + 1);
    for (std::size_t index = 0; index < samples.size(); index += step)
        kept.push_back(samples[index]);
    return kept;
}

std::vector<RunSample> curve(const ThroughputResult& test) {
    std::vector<RunSample> points;
    points.reserve(test.samples.size());
    for (const auto& sample : test.samples)
        points.push_back({sample.elapsed, sample.bytesPerSecond});
    return thinned(points);
}

void fillResult(RunRecord& run, const BenchmarkResult& result) {
    if (const auto& write = result.sequentialWrite) {
        run.writeBps = write->sustainedBytesPerSecond();
        run.writePeakBps = write->peakBytesPerSecond();
        run.writeMinBps = write->lowestBytesPerSecond();
        run.writeSamples = curve(*write);
    }
    if (const auto& read = result.sequentialRead) {
        run.readBps = read->sustainedBytesPerSecond();
        run.readPeakBps = read->peakBytesPerSecond();
        run.readMinBps = read->lowestBytesPerSecond();
        run.readSamples = curve(*read);
    }
    if (const auto& random = result.randomRead) {
        run.randomReadIOPS = random->iops();
        run.randomReadBps = random->bytesPerSecond();
    }
    if (const auto& random = result.randomWrite) {
        run.randomWriteIOPS = random->iops();
        run.randomWriteBps = random->bytesPerSecond();
    }
    if (result.fileOps)
        run.fileOpsPerSec = result.fileOps->create.opsPerSecond();
}

void fillVolume(RunRecord& run, const std::optional<VolumeInfo>& volume,
                const std::optional<VolumeCapabilities>& capabilities,
                const RunRecord::IdentityOf& driveIdentity) {
    const bool isOnNetwork = capabilities && isNetworkFilesystem(capabilities->filesystemType);
    std::tie(run.connection, run.kind) = attachment(volume, isOnNetwork);
    run.volumeName = volume ? volume->name : u"Volume"_s;
    if (volume) {
        run.capacityBytes = volume->total;
        run.freeBytes = volume->available;
    }
    if (capabilities) {
        run.fsType = capabilities->filesystemType;
        run.optimalIO = capabilities->optimalIOSize;
        run.blockSize = capabilities->blockSize;
        run.maxName = capabilities->maxNameLength;
    }
    if (isOnNetwork) {
        run.deviceProtocol = DriveInfo::networkProtocol(run.fsType);
    } else if (volume && volume->volumeURL) {
        const DriveIdentity identity = driveIdentity(*volume->volumeURL);
        run.deviceModel = identity.model;
        run.deviceProtocol = identity.protocolName;
    }
}

void fillPlan(RunRecord& run, const BenchmarkPlan& plan) {
    const auto* fixed = plan.size.asFixed();
    run.sizeLabel = fixed ? Format::bytes(fixed->bytes) : u"Fill disk"_s;
    run.writeBlock = plan.writeBlockSize;
    run.readBlock = plan.readBlockSize;
    run.randomBlock = plan.randomBlockSize;
    run.bypassCache = plan.bypassCache;
}

RunEvidence thinned(RunEvidence evidence) {
    if (evidence.circumstances)
        evidence.circumstances->samples = thinned(evidence.circumstances->samples);
    return evidence;
}

/// The remarks are made of all that was observed, before the samples are thinned.
void fillEvidence(RunRecord& run, const BenchmarkPlan& plan, const BenchmarkResult& result) {
    run.version = QStringLiteral(ONDEL_VERSION);
    if (result.circumstances)
        run.kernel = visibleText(QString::fromStdString(result.circumstances->kernel));
    run.evidence = thinned(RunEvidence::from(result));
    run.remarks = remarksOn(plan, result);
}

// --- Titles

struct RunTitle {
    Q_DECLARE_TR_FUNCTIONS(RunTitle)
};

constexpr int longestTitle = 60;
const QString partSeparator = u" · "_s;

bool isOnNetwork(const RunRecord& run) {
    return run.kind == RunRecord::Kind::network || (run.fsType && isNetworkFilesystem(*run.fsType));
}

/// Where the text's `count`th character ends, as people see characters (UAX #29); its length if it has fewer.
qsizetype endOfCharacters(const QString& text, int count) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::BreakIterator> characters(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
    if (U_FAILURE(status))
        qFatal("ICU has no data for characters");
    const icu::UnicodeString unicode(false, reinterpret_cast<const char16_t*>(text.utf16()),
                                     static_cast<int32_t>(text.size()));
    characters->setText(unicode);
    const int32_t end = characters->next(count);
    return end == icu::BreakIterator::DONE ? text.size() : end;
}

} // namespace

bool isNetworkFilesystem(const QString& filesystemType) {
    return std::ranges::find(networkFilesystems, filesystemType.toLower().toStdString()) !=
           networkFilesystems.end();
}

bool isInvalid(const std::vector<Remark>& remarks, BenchmarkTest test) {
    return std::ranges::any_of(remarks, [test](const Remark& remark) {
        return remark.weight == RemarkWeight::invalid && remark.test.value_or(test) == test;
    });
}

std::optional<QString> visibleText(const std::optional<QString>& text) {
    const auto isVisible = [](QChar character) {
        return !character.isSpace() && !character.isMark() && character.category() != QChar::Other_Control &&
               character.category() != QChar::Other_Format;
    };
    return text && std::ranges::any_of(*text, isVisible) ? text : std::nullopt;
}

DriveIdentity RunRecord::identityOf(const std::filesystem::path& volumeURL) {
    return DriveInfo::identity(volumeURL);
}

RunRecord RunRecord::from(const BenchmarkResult& result, const std::optional<VolumeInfo>& volume,
                          const std::optional<VolumeCapabilities>& capabilities, const QDateTime& date,
                          const BenchmarkPlan& plan, std::optional<double> duration,
                          const IdentityOf& driveIdentity) {
    RunRecord run;
    run.id = QUuid::createUuid();
    run.date = date;
    run.duration = std::max(0.0, duration ? *duration : sumOfDurations(result));
    fillResult(run, result);
    fillVolume(run, volume, capabilities, driveIdentity);
    fillPlan(run, plan);
    fillEvidence(run, plan, result);
    return run;
}

RunRecord RunRecord::withThinnedCurves() const {
    RunRecord run = *this;
    run.writeSamples = thinned(writeSamples);
    run.readSamples = thinned(readSamples);
    if (evidence)
        run.evidence = thinned(*evidence);
    return run;
}

QString RunRecord::title() const {
    if (const auto own = visibleText(customTitle))
        return *own;
    return volumeNameText(visibleText(volumeName).value_or(u"Volume"_s));
}

QString RunRecord::screenshotTitle() const {
    if (const auto own = visibleText(customTitle))
        return *own;
    if (isOnNetwork(*this)) {
        const auto told = visibleText(deviceProtocol);
        const auto protocol = told ? told : DriveInfo::networkProtocol(fsType);
        return protocol ? RunTitle::tr("%1 Server").arg(*protocol) : RunTitle::tr("Network Server");
    }
    return kind == Kind::internalDrive ? title()
                                       : visibleText(deviceModel).value_or(RunTitle::tr("External Drive"));
}

QString RunRecord::screenshotSubtitle() const {
    if (isOnNetwork(*this))
        return RunTitle::tr("Network volume");
    if (kind == Kind::internalDrive)
        return connectionText(u"Internal"_s) +
               (visibleText(fsType) ? partSeparator + fsType->toUpper() : QString());
    return connectionText(u"External"_s) +
           (visibleText(deviceProtocol) ? partSeparator + *deviceProtocol : QString());
}

std::optional<QString> RunRecord::customTitleFrom(const QString& text) {
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    return trimmed.left(endOfCharacters(trimmed, longestTitle));
}

std::size_t RunRecord::hash() const {
    std::size_t hash = 0;
    visitFields(*this, [&](std::string_view, const auto& field) {
        if constexpr (isOptional<std::remove_cvref_t<decltype(field)>>)
            hash = OndelCore::mixed(hash, field ? OndelCore::hashField(*field) : 0);
        else
            hash = OndelCore::mixed(hash, OndelCore::hashField(field));
    });
    return hash;
}

} // namespace TarnwickKit::model
