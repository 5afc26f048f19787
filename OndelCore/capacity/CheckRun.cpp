#include "OndelCore/capacity/CheckRun.h"

#include "OndelCore/volumes/VolumeAccess.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <span>

namespace OndelCore::capacity {

bool meansGone(int error) {
    constexpr std::array codes{ENODEV, ENXIO, ENOTCONN, ESHUTDOWN, ENOMEDIUM, ESTALE, ECONNABORTED};
    return std::ranges::find(codes, error) != codes.end();
}

bool isVolumeGone(const CheckRun& run, std::optional<std::int64_t> known) {
    if (!known)
        return !volumes::VolumeAccess::ownerOfNewFiles(run.folder) && errno != EROFS;
    struct alignas(blockBytes) Block {
        std::array<std::byte, static_cast<std::size_t>(blockBytes)> bytes;
    };
    const auto block = std::make_unique<Block>();
    auto file = run.files.open(run.files.pieceAt(*known), O_RDONLY);
    if (!file)
        return true;
    file->dropFromCache();
    return file->read(block->bytes, *known) <= 0;
}

} // namespace OndelCore::capacity
