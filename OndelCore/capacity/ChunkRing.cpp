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
    const std::uint64_t filled = m_filled.load() / one;
    for (;;) {
        const std::uint64_t emptied = m_emptied.load();
        if ((emptied & isClosed) != 0)
            return nullptr;
        if (filled - emptied / one < slots)
            return at(filled * one);
        m_emptied.wait(emptied);
    }
}

void ChunkRing::filled() {
    m_filled += one;
    m_filled.notify_one();
}

Chunk* ChunkRing::toEmpty() {
    const std::uint64_t emptied = m_emptied.load() / one;
    for (;;) {
        const std::uint64_t filled = m_filled.load();
        if ((filled & isClosed) != 0)
            return nullptr;
        if (filled / one != emptied)
            return at(emptied * one);
        if ((filled & isFinished) != 0)
            return nullptr;
        m_filled.wait(filled);
    }
}

void ChunkRing::emptied() {
    m_emptied += one;
    m_emptied.notify_one();
}

void ChunkRing::finish() {
    m_filled |= isFinished;
    m_filled.notify_one();
}

void ChunkRing::close() {
    for (std::atomic<std::uint64_t>* counter : {&m_filled, &m_emptied}) {
        *counter |= isClosed;
        counter->notify_all();
    }
}

void ChunkRing::awaitEmpty() {
    for (;;) {
        const std::uint64_t emptied = m_emptied.load();
        if ((emptied & isClosed) != 0 || emptied / one == m_filled.load() / one)
            return;
        m_emptied.wait(emptied);
    }
}

} // namespace OndelCore::capacity
