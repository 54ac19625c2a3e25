#include "loading.h"

#include <dlfcn.h>
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

/// The files that define a symbol themselves.
Names filesWith(const char *symbol)
{
    Names found;
    for (const std::string &file : loadedFiles()) {
        void *handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
        void *address = handle ? dlsym(handle, symbol) : nullptr;
        Dl_info info;
        if (address && dladdr(address, &info))
            found.insert(realPath(info.dli_fname));
        if (handle)
            dlclose(handle);
    }
    return found;
}

void librariesLoad(const Settings &settings)
{
    const auto failures = loadLibraries(settings);
    expect(failures.empty(), "every library loads", failures.empty() ? "" : failures.front());
    const std::string failure = callSetup(settings);
    expect(failure.empty(), "the function of --setup returns 0", failure);
}

void servicesAreFound(const Settings &)
{
    Names missing;
    for (const auto *checks : {&serviceChecks(), &dictionaryChecks()}) {
        for (const Check &check : *checks) {
            std::istringstream names(missingFunctions(check.needs));
            for (std::string name; names >> name;)
                missing.insert(name);
        }
    }
    expect(missing.empty(), "all services and dml__atr_next in the libraries", "missing " + joined(missing));
}

void libraryLoads(const Settings &)
{
    std::string error;
    expect(baseChecks(&error),
           "a base dialog library of the soname libzudunmaf_tvx.so.1, with which libzudunmaf.so loads",
           error);
}

void oneBase(const Settings &settings)
{
    std::string error;
    if (!baseChecks(&error))
        notCheckable("libzudunmaf.so does not load");
    const Names found = filesWith(BaseVirtualTable);
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

} // namespace

const std::vector<Check> &processChecks()
{
    static const std::vector<Check> checks{
        {"The host's libraries load", Verdict::Broken, "", librariesLoad},
        {"All services and the dictionary are found", Verdict::Broken, "", servicesAreFound},
        {"libzudunmaf.so loads with the host's base dialog", Verdict::Broken, "", libraryLoads},
        {"There is one base dialog, and it is the host's", Verdict::Broken, "", oneBase},
        {"There is one version of Qt", Verdict::Broken, "", oneQt},
    };
    return checks;
}

} // namespace Zudunmaf::hostcheck
