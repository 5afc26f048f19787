#pragma once

#include "OndelCore/capacity/CheckRun.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace OndelCore::capacity {

/// Where a quick check writes.
struct Samples {
    std::vector<Stretch> stretches;
    CapacitySampling sampling;
    std::optional<EarlyEnd> end{}; ///< why not all of the range could be reserved
    /// Keep their reservations: FAT gives those of a file up that nobody has open.
    std::vector<PieceFile> held{};
};

/// Places samples over a range of `bytes`: a dense stretch at its beginning, single blocks at equal distances
/// that are shorter than that stretch, one at each power of two, and the last block. Whatever the size is
/// after which a device wraps around, some of the single blocks then land in the dense stretch.
/// `places`: how many single blocks there may be.
Samples spreadSamples(std::int64_t bytes, std::int64_t places = 1024);

/// Reserves space for the whole range, which takes most file systems little time, and places the samples in
/// it. FAT would fill a file with zeros up to each sample: there each is a file of its own, and between them
/// lie files that have space and no content. A file system that cannot reserve would put all samples side by
/// side, unless it is known to spread a sparse file: there a short stretch at the beginning is all there is
/// to write. A reservation that fails for damage
/// is a defect. Fails: throws BenchmarkError::Io if the volume is gone, or Cancelled.
Samples prepareSamples(const CheckRun& run);

} // namespace OndelCore::capacity
