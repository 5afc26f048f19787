#include "OndelCore/capacity/ChunkRing.h"

#include <sys/mman.h>

#include <new>

namespace OndelCore::capacity {

ChunkRing::ChunkRing() {
    constexpr std::size_t size = slots * chunkBytes;
    void* bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED)
        throw std::bad_alloc();
    m_memory = {static_cast<std::byte*>(bytes), size};
    m_chunks.resize(slots);
    for (std::size_t i = 0; i < slots; ++i)
        m_chunks[i].memory = m_memory.subspan(i * chunkBytes, chunkBytes);
}

ChunkRing::~ChunkRing() { munmap(m_memory.data(), m_memory.size()); }

Chunk* ChunkRing::toFill() {
    std::unique_lock guard(m_lock);
    m_changed.wait(guard, [this] { return m_isClosed || m_filled - m_emptied < slots; });
    return m_isClosed ? nullptr : &m_chunks[m_filled % slots];
}

void ChunkRing::filled() {
    const std::lock_guard guard(m_lock);
    ++m_filled;
    m_changed.notify_all();
}

Chunk* ChunkRing::toEmpty() {
    std::unique_lock guard(m_lock);
    m_changed.wait(guard, [this] { return m_isClosed || m_isFinished || m_filled != m_emptied; });
    return m_isClosed || m_filled == m_emptied ? nullptr : &m_chunks[m_emptied % slots];
}

void ChunkRing::emptied() {
    const std::lock_guard guard(m_lock);
    ++m_emptied;
    m_changed.notify_all();
}

void ChunkRing::finish() {
    const std::lock_guard guard(m_lock);
    m_isFinished = true;
    m_changed.notify_all();
}

void ChunkRing::close() {
    const std::lock_guard guard(m_lock);
    m_isClosed = true;
    m_changed.notify_all();
}

void ChunkRing::awaitEmpty() {
    std::unique_lock guard(m_lock);
    m_changed.wait(guard, [this] { return m_isClosed || m_filled == m_emptied; });
}

} // namespace OndelCore::capacity
