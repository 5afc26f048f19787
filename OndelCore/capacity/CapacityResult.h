#pragma once

#include "OndelCore/Export.h"
#include "OndelCore/benchmark/evidence/Evidence.h"
#include "OndelCore/capacity/CapacityProgress.h"
#include "OndelCore/platform/drives/Circumstances.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <system_error>
#include <vector>

namespace OndelCore::capacity {

/// What came back instead of what was written.
enum class DefectKind {
    zeros,       ///< nothing but zero bytes
    otherBlock,  ///< what was written elsewhere in this check: wrap-around, swapped or repeated blocks
    foreign,     ///< neither zeros nor of this check: older content, noise
    bitFlips,    ///< the right content with a few bits changed
    unreadable,  ///< reading failed
    writeFailed, ///< writing failed; such a block is not read
    recovered,   ///< writing or reading failed, and succeeded when it was repeated in parts
};

inline constexpr std::array allDefectKinds{
    DefectKind::zeros,      DefectKind::otherBlock,  DefectKind::foreign,  DefectKind::bitFlips,
    DefectKind::unreadable, DefectKind::writeFailed, DefectKind::recovered};

/// Neighbouring blocks with the same defect. Units: bytes. Offsets count from the check's own first byte, in
/// the order of its writing; they are no addresses on the disk.
struct CapacityDefect {
    DefectKind kind = DefectKind::foreign;
    std::int64_t offset = 0;
    std::int64_t length = 0; ///< a multiple of 4096
    /// otherBlock: the offset whose content the first block holds. The others hold what follows there, or the
    /// same if `repeats`.
    std::optional<std::int64_t> holds{};
    std::int64_t flippedBits = 0;           ///< bitFlips: in all blocks of it
    std::optional<std::error_code> error{}; ///< unreadable, writeFailed, recovered: of the first
    bool repeats = false;                   ///< otherBlock: all its blocks hold the same
    bool isOnlyLater = false;               ///< right at the first reading, and found by the second alone

    bool operator==(const CapacityDefect&) const = default;
};

/// The size that a volume with a false capacity really has, concluded from where the defects lie.
struct CapacityRealSize {
    /// Why the volume is smaller.
    enum class Reason {
        wrapsAround, ///< what lies beyond is written over what lies before
        dropsBeyond, ///< what lies beyond is lost
    };
    Reason reason = Reason::dropsBeyond;
    /// Units: bytes. wrapsAround: of the device, exact where the file system told the places of its blocks.
    /// dropsBeyond: how much of what was written was kept, plus what was in use before the check.
    std::int64_t bytes = 0;
    bool isExact = false;

    bool operator==(const CapacityRealSize&) const = default;
};

/// Why fewer bytes were written than planned. No error: what was written is checked all the same.
enum class EarlyEnd {
    full,        ///< the volume had no more room: others wrote meanwhile, or its own figure was too high
    quota,       ///< the user may have no more of it
    writeErrors, ///< it refused everything from some place on
};

/// The rate at a place of the range. Units: bytes, bytes per second.
struct CapacityRate {
    std::int64_t offset = 0;
    double bytesPerSecond = 0;

    bool operator==(const CapacityRate&) const = default;
};

/// One pass over the range.
struct CapacityPass {
    std::int64_t bytes = 0;
    /// Units: seconds; writing: with its flushes. Without the time in which the process stood still.
    double duration = 0;
    std::vector<CapacityRate> rates{}; ///< by rising offset, at most 512
    /// Not all of it went past the system's cache: the file system refused. It was dropped from the cache
    /// then before it was read, which the system may ignore.
    bool wentThroughCache = false;
    /// Writing: why the last flush failed; absent when it did not.
    std::optional<std::error_code> flushError{};
    /// How much of it was seen at the disk, 0 to 1: at the volume's own device, else at the whole disks.
    /// Absent where no disk is to be seen. A small share means that memory was read and not the medium.
    std::optional<double> shareAtDisk{};
    benchmark::TestEvidence evidence{};

    double bytesPerSecond() const { return duration > 0 ? static_cast<double>(bytes) / duration : 0; }
    bool operator==(const CapacityPass&) const = default;
};

/// How a quick check spread its samples. Units: bytes.
struct CapacitySampling {
    /// The samples lie all over the range: the file system reserved space for it, or spreads sparse files. If
    /// not, they lie close together and show little more than themselves.
    bool isSpread = false;
    std::int64_t reserved = 0; ///< for how much of the range space was reserved
    std::int64_t samples = 0;  ///< how many places were written
    std::int64_t spacing = 0;  ///< from one to the next

    bool operator==(const CapacitySampling&) const = default;
};

/// What a check brought. Units: bytes.
struct ONDEL_PUBLIC CapacityResult {
    std::int64_t planned = 0;  ///< in a quick check: the range that the samples were to be spread over
    std::int64_t written = 0;  ///< in a quick check, here and below: the samples alone
    std::int64_t verified = 0; ///< right in every reading
    std::int64_t wrong = 0;    ///< came back otherwise
    std::int64_t unreadable = 0;
    std::int64_t writeFailed = 0;
    std::int64_t recovered = 0; ///< in transfers that had to be repeated; counted as verified too, if right
    /// By rising offset: the first 100 runs of blocks.
    std::vector<CapacityDefect> defects{};
    std::int64_t furtherDefects = 0; ///< how many runs there are besides
    std::array<std::int64_t, allDefectKinds.size()>
        bytesByKind{}; ///< all defects, in the order of DefectKind
    std::optional<CapacityRealSize> realSize{};
    std::optional<EarlyEnd> earlyEnd{};

    CapacityPass write{};
    CapacityPass read{};
    std::optional<CapacityPass> readAgain{};
    std::optional<CapacitySampling> quick{}; ///< absent: a whole check
    CapacityCells cells{};
    std::optional<std::int64_t> volumeTotal{};
    std::optional<std::int64_t> volumeFree{}; ///< before the check
    platform::Circumstances circumstances{};
    double duration = 0; ///< seconds of the whole check, removal excluded

    std::int64_t bytesOf(DefectKind kind) const { return bytesByKind.at(static_cast<std::size_t>(kind)); }
    bool hasDefects() const { return wrong + unreadable + writeFailed + recovered > 0; }
    /// All that was planned came back as written, in a check that was not a quick one, and nothing speaks
    /// against the disk itself having been read. Without it and without defects a check found nothing, and
    /// that is all it may claim.
    bool isProof() const;

    bool operator==(const CapacityResult&) const = default;
};

/// The stable names ("otherBlock", "wrapsAround", "quota"), for files and scripts.
ONDEL_PUBLIC std::string_view rawValue(DefectKind kind);
ONDEL_PUBLIC std::string_view rawValue(CapacityRealSize::Reason reason);
ONDEL_PUBLIC std::string_view rawValue(EarlyEnd end);
ONDEL_PUBLIC std::optional<DefectKind> defectKind(std::string_view rawValue);

} // namespace OndelCore::capacity
