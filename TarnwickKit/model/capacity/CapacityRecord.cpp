#include "TarnwickKit/model/capacity/CapacityRecord.h"

#include "TarnwickKit/model/format/VolumeText.h"

#include <algorithm>

namespace TarnwickKit::model {

using namespace OndelCore::capacity;

CapacityRecord CapacityRecord::from(const CapacityResult& result, const CapacityPlan& plan,
                                    const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                                    const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                                    const QDateTime& date, const RunRecord::IdentityOf& driveIdentity) {
    // A run that measured nothing knows the volume in the same words.
    const RunRecord run = RunRecord::from({}, volume, capabilities, date, {}, 0, driveIdentity);
    CapacityRecord check;
    check.id = run.id;
    check.volumeName = run.volumeName;
    check.connection = run.connection;
    check.date = date;
    check.size = plan.size;
    check.leaveFree = plan.leaveFree;
    if (plan.again)
        check.again = static_cast<double>(plan.again->count());
    check.result = result;
    check.result.circumstances.samples.clear();
    check.fsType = run.fsType;
    check.deviceModel = run.deviceModel;
    check.deviceProtocol = run.deviceProtocol;
    check.version = run.version;
    return check;
}

CapacityRecord
CapacityRecord::fromStopped(const CapacityProgress& last, const CapacityPlan& plan,
                            const std::optional<OndelCore::volumes::VolumeInfo>& volume,
                            const std::optional<OndelCore::volumes::VolumeCapabilities>& capabilities,
                            const QDateTime& date, const RunRecord::IdentityOf& driveIdentity) {
    CapacityRecord check = from(resultWhenStopped(last), plan, volume, capabilities, date, driveIdentity);
    check.wasStopped = true;
    if (plan.isQuick)
        check.result.quick.emplace();
    if (volume)
        check.result.volumeTotal = volume->total;
    return check;
}

bool CapacityRecord::isFromMemory() const {
    constexpr double diskShare = 0.9; // as for the figures of a run
    return result.read.shareAtDisk.value_or(1) < diskShare;
}

bool CapacityRecord::isWhole() const {
    constexpr double nearlyAll = 0.98;
    const bool isAllThatFits =
        !size && result.earlyEnd == EarlyEnd::full &&
        static_cast<double>(result.written) >= nearlyAll * static_cast<double>(result.planned);
    return !wasStopped && !result.quick && result.written > 0 && result.verified == result.written &&
           (result.written == result.planned || isAllThatFits);
}

CapacityVerdict CapacityRecord::verdict() const {
    if (isBad())
        return CapacityVerdict::bad;
    return isWhole() && !isFromMemory() ? CapacityVerdict::good : CapacityVerdict::unproven;
}

QString CapacityRecord::title() const {
    return volumeNameText(visibleText(volumeName).value_or(QStringLiteral("Volume")));
}

CapacityResult resultWhenStopped(const CapacityProgress& last) {
    constexpr std::int64_t block = 4096;
    CapacityResult result;
    if (!last.cells)
        return result;
    result.cells = *last.cells;
    const auto count = [&](BlockState state) { return std::ranges::count(result.cells.states, state); };
    result.wrong = block * count(BlockState::wrong);
    result.unreadable = block * count(BlockState::unreadable);
    result.writeFailed = block * count(BlockState::writeFailed);
    const bool hasWritten = last.phase >= CapacityPhase::reading;
    const bool isReading = last.phase == CapacityPhase::reading || last.phase == CapacityPhase::readingAgain;
    result.planned = isReading || last.phase == CapacityPhase::writing
                         ? last.total
                         : result.cells.cellBytes * std::ssize(result.cells.states);
    result.written = hasWritten ? result.planned : last.phase == CapacityPhase::writing ? last.done : 0;
    const std::int64_t read = last.phase > CapacityPhase::reading ? result.written
                              : isReading                         ? last.done
                                                                  : 0;
    result.verified = std::max<std::int64_t>(0, read - result.wrong - result.unreadable);
    return result;
}

std::vector<BlockState> worstOf(const std::vector<BlockState>& cells, std::size_t most) {
    if (cells.size() <= most)
        return cells;
    std::vector<BlockState> worst(most);
    for (std::size_t index = 0; index < cells.size(); ++index) {
        BlockState& group = worst[index * most / cells.size()];
        group = std::max(group, cells[index]);
    }
    return worst;
}

} // namespace TarnwickKit::model
