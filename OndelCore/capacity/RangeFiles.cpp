#include "OndelCore/capacity/RangeFiles.h"

#include "OndelCore/platform/storage/OpenFolders.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <string>
#include <utility>

namespace OndelCore::capacity {

namespace {

std::string pieceName(std::size_t index) { return "range-" + std::to_string(index) + ".bin"; }

template <class Call>
ssize_t unlessInterrupted(platform::CacheBypass& bypass, Call call) {
    for (;;) {
        const ssize_t moved = bypass.perform(call);
        if (moved >= 0 || errno != EINTR)
            return moved;
    }
}

} // namespace

PieceFile::PieceFile(const CheckEnvironment& system, platform::FileDescriptor file, const Piece& piece)
    : m_system(&system)
    , m_file(std::move(file))
    , m_piece(piece)
    , m_bypass(m_file.get()) {}

ssize_t PieceFile::write(std::span<const std::byte> bytes, std::int64_t offset) {
    return unlessInterrupted(m_bypass, [&] {
        return m_system->pwrite(m_file.get(), bytes.data(), bytes.size(), offset - m_piece.offset);
    });
}

ssize_t PieceFile::read(std::span<std::byte> bytes, std::int64_t offset) {
    return unlessInterrupted(m_bypass, [&] {
        return m_system->pread(m_file.get(), bytes.data(), bytes.size(), offset - m_piece.offset);
    });
}

std::optional<PieceFile> RangeFiles::append(std::int64_t length) {
    const Piece piece{m_pieces.empty() ? 0 : m_pieces.back().end(), length};
    const std::string name = pieceName(m_pieces.size());
    platform::FileDescriptor file(openat(
        m_folder, name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (!file)
        return std::nullopt;
    m_pieces.push_back(piece);
    return PieceFile(m_system, std::move(file), piece);
}

void RangeFiles::removeLast() {
    m_pieces.pop_back();
    unlinkat(m_folder, pieceName(m_pieces.size()).c_str(), 0);
}

const Piece& RangeFiles::pieceAt(std::int64_t offset) const {
    return *std::prev(std::ranges::upper_bound(m_pieces, offset, {}, &Piece::offset));
}

std::optional<PieceFile> RangeFiles::open(const Piece& piece, int flags) const {
    const auto index = static_cast<std::size_t>(&piece - m_pieces.data());
    platform::FileDescriptor file = platform::openInnerFile(m_folder, pieceName(index), flags);
    if (!file)
        return std::nullopt;
    return PieceFile(m_system, std::move(file), piece);
}

} // namespace OndelCore::capacity
