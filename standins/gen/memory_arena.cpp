#include "gen/memory_arena.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <utility>

namespace Zudunmaf
{
namespace gen
{

namespace
{

/// Each chunk starts at a multiple of this, so that a block's address gives its chunk.
constexpr std::size_t Alignment = 0x10000;
/// Leaves room for the header of malloc, so that chunks are adjacent.
constexpr std::size_t UsualSize = Alignment - 64;

} // namespace

struct alignas(std::max_align_t) MemoryArena::Chunk {
    static Chunk *create(std::size_t size)
    {
        // Not operator new, which rounds the size up to the alignment and leaves a gap after each chunk.
        void *memory = nullptr;
        if (posix_memalign(&memory, Alignment, size) != 0)
            throw std::bad_alloc();
        return new (memory) Chunk{nullptr, size, sizeof(Chunk), 0};
    }

    static Chunk *of(void *block)
    {
        return reinterpret_cast<Chunk *>(reinterpret_cast<std::uintptr_t>(block) & ~(Alignment - 1));
    }

    std::size_t room() const { return size - used; }

    Chunk *next;
    std::size_t size;
    std::size_t used;
    std::size_t blocks;
};

void *MemoryArena::allocate(std::size_t size)
{
    constexpr std::size_t unit = alignof(std::max_align_t);
    if (size > PTRDIFF_MAX - Alignment)
        throw std::bad_alloc();
    const std::size_t whole = (std::max<std::size_t>(size, 1) + unit - 1) / unit * unit;
    Chunk *chunk = chunkFor(whole);
    void *block = reinterpret_cast<unsigned char *>(chunk) + chunk->used;
    chunk->used += whole;
    ++chunk->blocks;
    return block;
}

MemoryArena::Chunk *MemoryArena::chunkFor(std::size_t size)
{
    if (m_current && size <= m_current->room())
        return m_current;
    if (size > UsualSize - sizeof(Chunk))
        return Chunk::create(sizeof(Chunk) + size);
    m_current = m_unused ? std::exchange(m_unused, m_unused->next) : Chunk::create(UsualSize);
    return m_current;
}

void MemoryArena::free(void *block)
{
    Chunk *chunk = Chunk::of(block);
    if (--chunk->blocks > 0)
        return;
    if (chunk->size != UsualSize) {
        std::free(chunk);
        return;
    }
    chunk->used = sizeof(Chunk);
    if (chunk != m_current) {
        chunk->next = m_unused;
        m_unused = chunk;
    }
}

} // namespace gen
} // namespace Zudunmaf
