#pragma once

#include <sys/ioctl.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace OndelCore::platform {

/// The result of XFS_IOC_FSGEOMETRY_V1 (xfs_fs.h), in native byte order.
struct XfsGeometry {
    std::array<std::uint32_t, 4> blockAndGroupSizes;
    std::array<std::uint32_t, 4> sectorAndInodeSizes;
    std::array<std::uint64_t, 4> blockCounts;
    std::array<std::uint8_t, 16> uuid;
    std::uint32_t stripeUnit;
    std::uint32_t stripeWidth;
    std::int32_t version;
    std::uint32_t flags;
    std::array<std::uint32_t, 4> logSectorAndRealtimeSizes;
};
static_assert(sizeof(XfsGeometry) == 112);
static_assert(offsetof(XfsGeometry, flags) == 92);
constexpr unsigned long xfsGetGeometry = _IOR('X', 100, XfsGeometry);
constexpr std::uint32_t xfsIgnoresCase = 1U << 13;
constexpr std::uint32_t xfsSharesBlocks = 1U << 20;

} // namespace OndelCore::platform
