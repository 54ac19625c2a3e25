#include "loading.h"

#include <link.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace Zudunmaf::hostcheck
{

namespace
{

using Names = std::set<std::string>;

std::string joined(const Names &names)
{
    std::string line;
    for (const std::string &name : names)
        line += (line.empty() ? "" : ", ") + name;
    return line;
}

std::string realPath(const std::string &path)
{
    std::error_code ignored;
    return std::filesystem::weakly_canonical(path, ignored).string();
}

/// The files of this process, from the program's own link map on.
Names loadedFiles()
{
    Names files;
    dl_iterate_phdr(
        [](dl_phdr_info *info, size_t, void *data) {
            if (*info->dlpi_name)
                static_cast<Names *>(data)->insert(info->dlpi_name);
            return 0;
        },
        &files);
    return files;
}

void librariesLoad(const Settings &settings)
{
    const std::string failure = loadHost(settings);
    expect(failure.empty(), "libraries that load, and 0 from the function of --setup", failure);
}

void servicesAreFound(const Settings &)
{
    Names missing;
    for (const char *name :
         {"gen__nls_nlst", "gen__nls_nlsa_get_att_prompt", "gen__cfg_get", "gen__log_status_check",
          "gen__mem_malloc", "gen__mem_free", "gen__str_cmp_nc", "gen__str_cmp_reg",
          "gen__torvex_units_convert_2", "gen__torvex_units_convert", "gen__torvex_units_convert_f",
          "gen__torvex_cur_units_str", "gen__torvex_get_str_units", "dml__atr_next"}) {
        if (!dlsym(RTLD_DEFAULT, name))
            missing.insert(name);
    }
    expect(missing.empty(), "all services and dml__atr_next in the libraries", "missing " + joined(missing));
}

void libraryLoads(const Settings &)
{
    expect(baseModule().checks,
           "a base dialog library of the soname libzudunmaf_tvx.so.1, with which libzudunmaf.so loads",
           baseModule().error);
}

void oneBase(const Settings &settings)
{
    if (!baseModule().checks)
        notCheckable("libzudunmaf.so does not load");
    Names found;
    for (const std::string &file : loadedFiles()) {
        // Also finds the symbol in what the file depends on.
        void *handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
        void *table = handle ? dlsym(handle, BaseVirtualTable) : nullptr;
        Dl_info info;
        if (table && dladdr(table, &info))
            found.insert(realPath(info.dli_fname));
    }
    expect(found.size() == 1, "one library that defines TvxAttributesSelectionDialog",
           found.empty() ? "none" : joined(found));
    const bool isGiven =
        std::any_of(settings.libraries.begin(), settings.libraries.end(),
                    [&found](const std::string &library) { return realPath(library) == *found.begin(); });
    expect(isGiven, "the base dialog of one of the given libraries", "the one in " + *found.begin());
    keptWith(*found.begin());
}

void oneQt(const Settings &)
{
    Names found;
    for (const std::string &file : loadedFiles()) {
        const std::string name = std::filesystem::path(file).filename().string();
        if (name.rfind("libQt", 0) == 0 && name.find("Core.so") != std::string::npos)
            found.insert(name);
    }
    if (found.empty())
        notCheckable("no file of the process is called libQt*Core.so");
    expect(found.size() == 1, "one version of Qt", joined(found));
    keptWith(*found.begin());
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
        {"There is one base dialog, and it is the host's", Verdict::Broken, oneBase},
        {"There is one version of Qt", Verdict::Broken, oneQt},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
