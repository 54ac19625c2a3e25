#include "loading.h"

#include <cxxabi.h>

#include <filesystem>
#include <memory>

namespace Zudunmaf::hostcheck
{

namespace
{

std::string readable(const char *symbol)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void *)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                       std::free);
    return name ? name.get() : symbol;
}

} // namespace

std::vector<std::string> loadLibraries(const Settings &settings)
{
    std::vector<std::string> failures;
    for (const std::string &library : settings.libraries) {
        if (!dlopen(library.c_str(), RTLD_LAZY | RTLD_GLOBAL))
            failures.emplace_back(dlerror());
    }
    return failures;
}

std::string callSetup(const Settings &settings)
{
    if (settings.setup.empty())
        return {};
    auto *setup = reinterpret_cast<int (*)()>(hostFunction(settings.setup.c_str()));
    if (!setup)
        return text("no library has the function ", settings.setup);
    const int status = setup();
    return status == 0 ? std::string() : text(settings.setup, "() returned ", status);
}

const std::vector<Check> *baseChecks(std::string *error)
{
    // The dialogs and the checks of the base dialog are one module, since both need the base's symbols at load.
    static void *const module = [] {
        const auto program = std::filesystem::canonical("/proc/self/exe").parent_path();
        return dlopen((program / ZUDUNMAF_MODULE_FROM_PROGRAM).c_str(), RTLD_LAZY | RTLD_LOCAL);
    }();
    static const std::string failure = module ? "" : readable(dlerror());
    *error = failure;
    if (!module)
        return nullptr;
    auto *checks = reinterpret_cast<const std::vector<Check> *(*)()>(dlsym(module, "zudunmafBaseChecks"));
    return checks();
}

std::string missingFunctions(const char *needs)
{
    std::string missing;
    std::istringstream names(needs);
    for (std::string name; names >> name;) {
        if (!hostFunction(name.c_str()))
            missing += (missing.empty() ? "" : " ") + name;
    }
    return missing;
}

} // namespace Zudunmaf::hostcheck
