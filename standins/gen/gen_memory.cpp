#include "gdm/host/gen_services.h"

#include "gen/memory_arena.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <new>

namespace
{

#if defined(__SANITIZE_ADDRESS__)
#    define ZUDUNMAF_BLOCKS_ARE_WATCHED
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
#        define ZUDUNMAF_BLOCKS_ARE_WATCHED
#    endif
#endif

#ifdef ZUDUNMAF_BLOCKS_ARE_WATCHED
/// The sanitizer watches each block on its own.
struct Source {
    void *take(std::size_t size) { return ::operator new(size); }
    void giveBack(void *block) { ::operator delete(block); }
};
#else
using Source = Zudunmaf::gen::MemoryArena;
#endif

/// Lasts as long as the process, since nobody can tell which static object gives its blocks back last.
Source &source()
{
    static auto *const source = new Source;
    return *source;
}

/// One for all: hardly ever do two threads ask at once.
std::mutex g_sourceGuard;

} // namespace

void *gen__mem_malloc(size_t size, int, const char *file, int line)
{
    try {
        const std::lock_guard<std::mutex> guard(g_sourceGuard);
        return source().take(size);
    } catch (const std::bad_alloc &) {
        std::fprintf(stderr, "zudunmaf: out of memory for %zu bytes (%s:%d)\n", size, file ? file : "?",
                     line);
        std::abort();
    }
}

void gen__mem_free(void *memory, int, const char *, int)
{
    if (!memory)
        return;
    const std::lock_guard<std::mutex> guard(g_sourceGuard);
    source().giveBack(memory);
}
