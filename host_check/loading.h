#ifndef HOST_CHECK_LOADING_H
#define HOST_CHECK_LOADING_H

#include "check.h"

#include <dlfcn.h>

/// @file
/// The host's libraries in this process. Nothing here is linked to the host: a missing function is a finding and does
/// not end the process.

namespace Zudunmaf::hostcheck
{

/// Address of a function in the host's libraries. Ends the running check if there is none.
inline void *hostFunction(const char *name)
{
    void *address = dlsym(RTLD_DEFAULT, name);
    if (!address)
        notCheckable(text("missing ", name));
    return address;
}

/// Every library that defines the base dialog has this symbol.
constexpr char BaseVirtualTable[] = "_ZTV28TvxAttributesSelectionDialog";

/// Loads the libraries as a host does that loads them by itself, and calls the host's function for preparation. Returns
/// what went wrong first, empty if nothing did.
std::string loadHost(const Settings &settings);

/// libzudunmaf.so and the checks of the base dialog, which need the base's symbols at load. Loaded on the first call.
struct BaseModule {
    const BaseChecks *checks; ///< Null if it does not load.
    std::string error;
};
const BaseModule &baseModule();

} // namespace Zudunmaf::hostcheck

/// Calls a host function by its name: HOST(gen__str_cmp_nc)(a, b).
#define HOST(function) reinterpret_cast<decltype(&function)>(::Zudunmaf::hostcheck::hostFunction(#function))

#endif
