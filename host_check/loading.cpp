#include "loading.h"

#include <link.h>

#include <algorithm>
#include <filesystem>

namespace Zudunmaf::hostcheck
{

namespace
{

/// The soname under which libzudunmaf.so asks for the base dialog.
constexpr char BaseName[] = "libzudunmaf_tvx.so.1";

std::string realPath(const std::string &path)
{
    std::error_code ignored;
    return std::filesystem::weakly_canonical(path, ignored).string();
}

void librariesLoad(const Settings &settings)
{
    const std::string failure = loadHost(settings);
    expect(failure.empty(), "libraries that load, and 0 from the function of --setup", failure);
}

void servicesAreFound(const Settings &)
{
    std::string missing;
    for (const char *name :
         {"gen__nls_nlst", "gen__nls_nlsa_get_att_prompt", "gen__cfg_get", "gen__log_status_check",
          "gen__mem_malloc", "gen__mem_free", "gen__str_cmp_nc", "gen__str_cmp_reg",
          "gen__torvex_units_convert_2", "gen__torvex_units_convert", "gen__torvex_units_convert_f",
          "gen__torvex_cur_units_str", "gen__torvex_get_str_units", "dml__atr_next"}) {
        if (!dlsym(RTLD_DEFAULT, name))
            missing += text(' ', name);
    }
    expect(missing.empty(), "all services and dml__atr_next in the libraries", "missing" + missing);
}

void libraryLoads(const Settings &)
{
    expect(baseModule().checks,
           text("a base dialog library of the soname ", BaseName, ", with which libzudunmaf.so loads"),
           baseModule().error);
}

void baseIsOfHost(const Settings &settings)
{
    if (!baseModule().checks)
        notCheckable("libzudunmaf.so does not load");
    link_map *file = nullptr;
    dlinfo(dlopen(BaseName, RTLD_LAZY | RTLD_NOLOAD), RTLD_DI_LINKMAP, &file);
    const std::string path = realPath(file->l_name);
    const bool isGiven =
        std::any_of(settings.libraries.begin(), settings.libraries.end(),
                    [&path](const std::string &library) { return realPath(library) == path; });
    expect(isGiven, text("one of the given libraries as ", BaseName), path);
    keptWith(path);
}

void oneQt(const Settings &)
{
    std::vector<std::string> found;
    for (const char *name : {"libQtCore.so.4", "libQt5Core.so.5", "libQt6Core.so.6"}) {
        if (dlopen(name, RTLD_LAZY | RTLD_NOLOAD))
            found.emplace_back(name);
    }
    if (found.empty())
        notCheckable("Qt is not loaded, or has another name");
    expect(found.size() == 1, "one version of Qt", found.front() + " and " + found.back());
    keptWith(found.front());
}

BaseModule loadBaseModule()
{
    const auto program = std::filesystem::canonical("/proc/self/exe").parent_path();
    void *module = dlopen((program / ZUDUNMAF_MODULE_FROM_PROGRAM).c_str(), RTLD_LAZY | RTLD_LOCAL);
    if (!module)
        return {nullptr, dlerror()};
    auto *checks = reinterpret_cast<const BaseChecks *(*)()>(dlsym(module, "zudunmafBaseChecks"));
    return {checks(), {}};
}

} // namespace

std::string loadHost(const Settings &settings)
{
    std::string failure;
    for (const std::string &library : settings.libraries) {
        if (!dlopen(library.c_str(), RTLD_LAZY | RTLD_GLOBAL) && failure.empty())
            failure = dlerror();
    }
    if (!failure.empty() || settings.setup.empty())
        return failure;
    auto *setup = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, settings.setup.c_str()));
    if (!setup)
        return text("no library with the function ", settings.setup);
    const int status = setup();
    return status == 0 ? std::string() : text(settings.setup, "() returned ", status);
}

const BaseModule &baseModule()
{
    static const BaseModule module = loadBaseModule();
    return module;
}

const std::vector<Check> &processChecks()
{
    static const std::vector<Check> checks{
        {"The host's libraries load", Verdict::Broken, librariesLoad},
        {"All services and the dictionary are found", Verdict::Broken, servicesAreFound},
        {"libzudunmaf.so loads with the host's base dialog", Verdict::Broken, libraryLoads},
        {"The base dialog of libzudunmaf.so is the host's", Verdict::Broken, baseIsOfHost},
        {"There is one version of Qt", Verdict::Broken, oneQt},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
