#ifndef HOST_CHECK_LOADING_H
#define HOST_CHECK_LOADING_H

#include "check.h"

#include <dlfcn.h>

/// @file
/// The host's libraries in this process.

namespace Zudunmaf::hostcheck
{

/// Address of a function in the host's libraries; null if there is none. Nothing here is linked to the host: a missing
/// function is a finding and not the end of the process.
inline void *hostFunction(const char *name)
{
    return dlsym(RTLD_DEFAULT, name);
}

/// Every library that defines the base dialog has this symbol.
constexpr char BaseVirtualTable[] = "_ZTV28TvxAttributesSelectionDialog";

/// Loads the libraries as a host does that loads them by itself. Returns one line for each that failed.
std::vector<std::string> loadLibraries(const Settings &settings);

/// Calls the host's function for preparation. Returns what went wrong, empty if nothing did.
std::string callSetup(const Settings &settings);

/// The checks of the base dialog. Loads libzudunmaf.so on the first call; null with `*error` set if that fails.
const std::vector<Check> *baseChecks(std::string *error);

/// Names of `needs` that are not found, separated by blanks.
std::string missingFunctions(const char *needs);

} // namespace Zudunmaf::hostcheck

/// Calls a host function by its name: HOST(gen__str_cmp_nc)(a, b).
#define HOST(function) reinterpret_cast<decltype(&function)>(::Zudunmaf::hostcheck::hostFunction(#function))

#endif
