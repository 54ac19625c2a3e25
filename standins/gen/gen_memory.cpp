#include "gdm/host/gen_services.h"

#include "gen/memory_arena.h"

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <new>

namespace
{

#if defined(__SANITIZE_ADDRESS__)
#    define ZUDUNMAF_ADDRESS_SANITIZER
#elif defined(__has_feature)
#    if __has_feature(address_sanitizer)
#        define ZUDUNMAF_ADDRESS_SANITIZER
#    endif
#endif

#ifdef ZUDUNMAF_ADDRESS_SANITIZER
/// The sanitizer checks each block separately.
struct Source {
    void *allocate(std::size_t size) { return ::operator new(size); }
    void free(void *block) { ::operator delete(block); }
};
#else
using Source = Zudunmaf::gen::MemoryArena;
#endif

/// Never destroyed, because static objects may free blocks after it.
Source &source()
{
    static auto *const source = new Source;
    return *source;
}

/// One mutex is enough: threads rarely allocate at the same time.
std::mutex g_sourceGuard;

} // namespace

void *gen__mem_malloc(size_t size, int, const char *file, int line)
{
    try {
        const std::lock_guard<std::mutex> guard(g_sourceGuard);
        return source().allocate(size);
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
    source().free(memory);
}
