#ifndef HOST_CHECK_BASE_BASE_CHECKS_H
#define HOST_CHECK_BASE_BASE_CHECKS_H

#include "check.h"

namespace Zudunmaf::hostcheck
{

/// Whether the base library defines all functions; the only checks if it does not.
std::vector<Check> completenessChecks();
/// The base library by itself: what it defines, and its fills.
std::vector<Check> baseClassChecks();
/// Both dialogs over the base, driven by keys and by the mouse.
std::vector<Check> baseDialogChecks();

} // namespace Zudunmaf::hostcheck

#endif
