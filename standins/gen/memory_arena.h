#ifndef GEN_MEMORY_ARENA_H
#define GEN_MEMORY_ARENA_H

#include <cstddef>

namespace Zudunmaf
{
namespace gen
{

/// Gives out memory block behind block, a stretch at a time, and uses a stretch anew once all its blocks have come
/// back. A dialog takes a small block for each attribute, reads them in that order and gives them back together:
/// what this costs is the way through memory, which is shortest from one end to the other.
///
/// A block that stays keeps its stretch, 64 kB, from being used anew. Memory is freed only where a block was larger than
/// that. Not safe for threads by itself.
class MemoryArena
{
public:
    MemoryArena() = default;
    MemoryArena(const MemoryArena &) = delete;
    MemoryArena &operator=(const MemoryArena &) = delete;

    /// A block of at least this size, aligned for any type. Throws std::bad_alloc where the system has no more.
    void *take(std::size_t size);
    /// Takes back a block that take() gave.
    void giveBack(void *block);

private:
    struct Stretch;

    Stretch *stretchFor(std::size_t size);

    Stretch *m_current = nullptr;
    /// Those without a block in use, but for the current one.
    Stretch *m_unused = nullptr;
};

} // namespace gen
} // namespace Zudunmaf

#endif
