#include "OndelCore/capacity/CheckRun.h"

#include <fcntl.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>

namespace OndelCore::capacity {

bool meansGone(int error) {
    constexpr std::array codes{ENODEV, ENXIO, ENOTCONN, ESHUTDOWN, ENOMEDIUM, ESTALE, ECONNABORTED};
    return std::ranges::find(codes, error) != codes.end();
}

bool isVolumeGone(const CheckRun& run) {
    struct alignas(blockBytes) Block {
        std::array<std::byte, static_cast<std::size_t>(blockBytes)> bytes;
    };
    constexpr std::int64_t probes = 32;
    const auto block = std::make_unique<Block>();
    const auto canRead = [&](std::int64_t offset) {
        auto file = run.files.open(run.files.pieceAt(offset), O_RDONLY);
        if (!file)
            return false;
        file->dropFromCache();
        return file->read(block->bytes, offset) > 0;
    };
    const auto& written = run.findings.written;
    for (std::int64_t i = 0; i <= probes && !written.empty(); ++i) {
        const std::int64_t wanted = written.back().end() / probes * i;
        auto stretch = std::ranges::upper_bound(written, wanted, {}, &Stretch::end);
        if (stretch == written.end())
            --stretch;
        const std::int64_t last = stretch->end() - blockBytes;
        if (canRead(std::clamp(wanted / blockBytes * blockBytes, stretch->offset, last)))
            return false;
    }
    return true;
}

} // namespace OndelCore::capacity
