#pragma once

#include "OndelCore/capacity/BlockPattern.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <optional>
#include <span>
#include <system_error>
#include <vector>

namespace OndelCore::capacity {

/// The largest transfer. Units: bytes.
inline constexpr std::int64_t chunkBytes = 1048576;

/// A part of the range, on its way between the thread that transfers it and the one that makes or compares
/// it.
struct Chunk {
    std::span<std::byte> memory; ///< `chunkBytes` long, aligned to pages
    std::int64_t offset = 0;     ///< in the range
    std::int64_t length = 0;
    /// Reading: for each block whether it could not be read; empty when all could.
    std::vector<bool> unreadable{};
    std::error_code error{}; ///< of the first of them; without any: the transfer had to be repeated

    std::span<std::byte> content() const { return memory.first(static_cast<std::size_t>(length)); }
};

/// Passes chunks from one thread to another and their memory back. 4 MiB in all. Threads: one that fills and
/// one that empties, and any that closes.
class ChunkRing {
public:
    /// Fails: throws std::bad_alloc.
    ChunkRing();
    ~ChunkRing();
    ChunkRing(const ChunkRing&) = delete;
    ChunkRing& operator=(const ChunkRing&) = delete;

    /// Waits for a chunk to fill. Null: closed.
    Chunk* toFill();
    void filled();
    /// Waits for a full one. Null: closed, or finished and empty.
    Chunk* toEmpty();
    void emptied();

    /// Nothing more will be filled.
    void finish();
    /// Ends all waiting.
    void close();
    /// Waits until everything filled was emptied, or the ring is closed.
    void awaitEmpty();

private:
    static constexpr std::size_t slots = 4;

    std::span<std::byte> m_memory;
    std::vector<Chunk> m_chunks;
    std::mutex m_lock;
    std::condition_variable m_changed;
    std::size_t m_filled = 0; ///< how many ever were
    std::size_t m_emptied = 0;
    bool m_isFinished = false;
    bool m_isClosed = false;
};

} // namespace OndelCore::capacity
