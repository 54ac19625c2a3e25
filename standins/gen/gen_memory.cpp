#include "gdm/host/gen_services.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <memory_resource>
#include <mutex>
#include <new>

namespace
{

/// Stands in front of each block: giving back asks for the size, which the caller no longer knows.
struct alignas(std::max_align_t) Header {
    std::size_t size;
};

/// A dialog takes as many small blocks of one size as there are attributes, and gives them back all at once. The
/// pool lasts as long as the process, since nobody can tell which static object gives its blocks back last.
std::pmr::memory_resource &pool()
{
#ifdef __SANITIZE_ADDRESS__
    return *std::pmr::new_delete_resource(); // where each block is watched on its own
#else
    static auto *const pool = new std::pmr::unsynchronized_pool_resource;
    return *pool;
#endif
}

/// Nearly always free, and then far cheaper than the pools for each thread of a synchronized resource.
std::mutex g_poolGuard;

} // namespace

void *gen__mem_malloc(size_t size, int, const char *file, int line)
{
    try {
        const std::size_t whole = sizeof(Header) + size;
        if (whole < size)
            throw std::bad_alloc();
        const std::lock_guard<std::mutex> guard(g_poolGuard);
        Header *header = static_cast<Header *>(pool().allocate(whole, alignof(Header)));
        header->size = whole;
        return header + 1;
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
    Header *header = static_cast<Header *>(memory) - 1;
    const std::lock_guard<std::mutex> guard(g_poolGuard);
    pool().deallocate(header, header->size, alignof(Header));
}
