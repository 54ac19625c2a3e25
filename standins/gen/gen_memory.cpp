#include "gdm/host/gen_services.h"

#include <cstdio>
#include <cstdlib>

void *gen__mem_malloc(size_t size, int, const char *file, int line)
{
    // For no bytes at all malloc() may answer null.
    void *memory = std::malloc(size > 0 ? size : 1);
    if (!memory) {
        std::fprintf(stderr, "zudunmaf: out of memory for %zu bytes (%s:%d)\n", size, file ? file : "?",
                     line);
        std::abort();
    }
    return memory;
}

void gen__mem_free(void *memory, int, const char *, int)
{
    std::free(memory);
}
