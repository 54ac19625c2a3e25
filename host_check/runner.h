#ifndef HOST_CHECK_RUNNER_H
#define HOST_CHECK_RUNNER_H

#include "check.h"

#include <functional>

namespace Zudunmaf::hostcheck
{

/// What came of one check.
struct Finding {
    std::string group, promise;
    Outcome outcome;
};

/// Runs all checks in a child process and calls `report` for each. If the host ends the child or does not return in
/// time, the check that was running is broken, and another child goes on with the next one.
void runChecks(const Settings &settings, const std::function<void(const Finding &)> &report);

} // namespace Zudunmaf::hostcheck

#endif
