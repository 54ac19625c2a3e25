#include <cstdio>
#include <cstring>
#include <dlfcn.h>

/// Loads the library in a process without services. Lazily that must work; all at once it must fail, and for
/// want of a service and nothing else. One way a process: what was loaded once may stay.
int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    const bool lazy = std::strcmp(argv[1], "lazy") == 0;
    const bool loaded = dlopen(argv[2], (lazy ? RTLD_LAZY : RTLD_NOW) | RTLD_LOCAL) != nullptr;
    const char *error = loaded ? "none" : dlerror();
    std::printf("%s: %s\n", argv[1], error);
    const bool wantsService = std::strstr(error, "gen__") || std::strstr(error, "dml__");
    return loaded == lazy && wantsService != lazy ? 0 : 1;
}
