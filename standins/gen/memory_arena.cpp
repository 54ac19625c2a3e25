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

/// Each stretch begins at a multiple of this, which leads from a block to its stretch.
constexpr std::size_t Alignment = 0x10000;
/// Short of the next multiple by what malloc puts between, so that stretches lie side by side.
constexpr std::size_t UsualSize = Alignment - 64;

} // namespace

struct alignas(std::max_align_t) MemoryArena::Stretch {
    static Stretch *create(std::size_t size)
    {
        // Not operator new, which rounds the size up to the alignment and so leaves a hole behind each stretch.
        void *memory = nullptr;
        if (posix_memalign(&memory, Alignment, size) != 0)
            throw std::bad_alloc();
        return new (memory) Stretch{nullptr, size, sizeof(Stretch), 0};
    }

    static Stretch *of(void *block)
    {
        return reinterpret_cast<Stretch *>(reinterpret_cast<std::uintptr_t>(block) & ~(Alignment - 1));
    }

    std::size_t room() const { return size - used; }

    Stretch *next;
    std::size_t size;
    std::size_t used;
    std::size_t blocks;
};

void *MemoryArena::take(std::size_t size)
{
    constexpr std::size_t unit = alignof(std::max_align_t);
    if (size > PTRDIFF_MAX - Alignment)
        throw std::bad_alloc();
    const std::size_t whole = (std::max<std::size_t>(size, 1) + unit - 1) / unit * unit;
    Stretch *stretch = stretchFor(whole);
    void *block = reinterpret_cast<unsigned char *>(stretch) + stretch->used;
    stretch->used += whole;
    ++stretch->blocks;
    return block;
}

MemoryArena::Stretch *MemoryArena::stretchFor(std::size_t size)
{
    if (m_current && size <= m_current->room())
        return m_current;
    if (size > UsualSize - sizeof(Stretch))
        return Stretch::create(sizeof(Stretch) + size);
    m_current = m_unused ? std::exchange(m_unused, m_unused->next) : Stretch::create(UsualSize);
    return m_current;
}

void MemoryArena::giveBack(void *block)
{
    Stretch *stretch = Stretch::of(block);
    if (--stretch->blocks > 0)
        return;
    if (stretch->size != UsualSize) {
        std::free(stretch);
        return;
    }
    stretch->used = sizeof(Stretch);
    if (stretch != m_current) {
        stretch->next = m_unused;
        m_unused = stretch;
    }
}

} // namespace gen
} // namespace Zudunmaf
