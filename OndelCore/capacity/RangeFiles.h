#pragma once

#include "OndelCore/capacity/CheckEnvironment.h"
#include "OndelCore/platform/storage/CacheBypass.h"
#include "OndelCore/platform/storage/FileDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <stop_token>
#include <system_error>
#include <vector>

namespace OndelCore::capacity {

/// A file that holds a part of the range. Units: bytes.
struct Piece {
    std::int64_t offset = 0; ///< of its first byte in the range
    std::int64_t length = 0; ///< what it may hold at most

    std::int64_t end() const { return offset + length; }
};

/// One piece, opened. Transfers answer as the system calls of their names do.
class PieceFile {
public:
    PieceFile(const CheckEnvironment& system, platform::FileDescriptor file, const Piece& piece);

    /// `offset`: in the range.
    ssize_t write(std::span<const std::byte> bytes, std::int64_t offset);
    ssize_t read(std::span<std::byte> bytes, std::int64_t offset);
    std::error_code flush() const { return m_system->flushToMedium(m_file.get()); }
    void dropFromCache() const { platform::dropFromCache(m_file.get()); }

    int descriptor() const { return m_file.get(); }
    const Piece& piece() const { return m_piece; }
    bool holds(std::int64_t offset) const { return offset >= m_piece.offset && offset < m_piece.end(); }
    const platform::CacheBypass& bypass() const { return m_bypass; }

private:
    const CheckEnvironment* m_system;
    platform::FileDescriptor m_file;
    Piece m_piece;
    platform::CacheBypass m_bypass;
};

/// The files of a check in its working folder. Others cannot write there. Whatever somebody puts under one of
/// the names all the same is not written to, since files for writing are made anew, and not waited for.
/// Threads: one at a time.
class RangeFiles {
public:
    /// `folder`: open; it and `system` outlive the object.
    RangeFiles(const CheckEnvironment& system, int folder)
        : m_system(system)
        , m_folder(folder) {}

    const std::vector<Piece>& pieces() const { return m_pieces; }

    /// Makes the next file, for writing. Fails: absent, with errno set.
    std::optional<PieceFile> append(std::int64_t length);
    /// From now on the last piece ends at `offset`.
    void endLastAt(std::int64_t offset) { m_pieces.back().length = offset - m_pieces.back().offset; }
    /// Removes the last file.
    void removeLast();

    /// The piece that holds `offset`; there must be one.
    const Piece& pieceAt(std::int64_t offset) const;
    /// Fails: absent, with errno set.
    std::optional<PieceFile> open(const Piece& piece, int flags) const;

private:
    const CheckEnvironment& m_system;
    int m_folder;
    std::vector<Piece> m_pieces;
};

} // namespace OndelCore::capacity
