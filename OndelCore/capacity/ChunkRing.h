#pragma once

#include "OndelCore/capacity/BlockPattern.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
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
    static constexpr std::uint64_t slots = 4;
    // The counters count by this, and have flags below it. Waiting for a counter is several times cheaper
    // than a lock and a condition: each chunk is a fifth of a millisecond.
    static constexpr std::uint64_t one = 4;
    static constexpr std::uint64_t isFinished = 1;
    static constexpr std::uint64_t isClosed = 2;

    Chunk* at(std::uint64_t counter) { return &m_chunks[counter / one % slots]; }

    std::span<std::byte> m_memory;
    std::vector<Chunk> m_chunks;
    std::atomic<std::uint64_t> m_filled = 0;  ///< how many ever were
    std::atomic<std::uint64_t> m_emptied = 0; ///< the same
};

} // namespace OndelCore::capacity
