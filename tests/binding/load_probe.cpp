#include "gdm/host/missing_host_functions.h"

#include <cstdio>
#include <cstring>
#include <dlfcn.h>

/// Prints what missingHostFunctions() of the loaded library returns, line by line.
static int printMissing(void *library)
{
    void *symbol = dlsym(library, "_ZN8Zudunmaf20missingHostFunctionsEv");
    if (!symbol)
        return 1;
    const auto missingHostFunctions = reinterpret_cast<decltype(&Zudunmaf::missingHostFunctions)>(symbol);
    for (const QString &name : missingHostFunctions())
        std::printf("%s\n", qPrintable(name));
    return 0;
}

/// load_probe lazy|now|missing LIBRARY: loads the library. In a process without services that must work lazily; all at
/// once it must fail, and for want of a service and nothing else. One way a process: what was loaded once may stay.
int main(int argc, char **argv)
{
    if (argc != 3)
        return 2;
    const bool lazy = std::strcmp(argv[1], "now") != 0;
    void *library = dlopen(argv[2], (lazy ? RTLD_LAZY : RTLD_NOW) | RTLD_LOCAL);
    const char *error = library ? "none" : dlerror();
    if (library && std::strcmp(argv[1], "missing") == 0)
        return printMissing(library);
    std::printf("%s: %s\n", argv[1], error);
    const bool wantsService = std::strstr(error, "gen__") || std::strstr(error, "dml__");
    return (library != nullptr) == lazy && wantsService != lazy ? 0 : 1;
}
