#ifndef HOST_CHECK_BASE_BASE_CHECKS_H
#define HOST_CHECK_BASE_BASE_CHECKS_H

#include "check.h"

namespace Zudunmaf::hostcheck
{

/// The base library by itself: its declaration and its fills.
std::vector<Check> baseClassChecks();
/// Both dialogs over the base, driven by keys and by the mouse.
std::vector<Check> dialogChecks();

} // namespace Zudunmaf::hostcheck

#endif
