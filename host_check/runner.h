#ifndef HOST_CHECK_RUNNER_H
#define HOST_CHECK_RUNNER_H

#include "report.h"

namespace Zudunmaf::hostcheck
{

/// Runs all checks in a child process. If the host ends the child or does not return in time, the check that was running
/// is broken, and another child goes on with the next one. Returns the exit status of the program.
int runChecks(const Settings &settings);

} // namespace Zudunmaf::hostcheck

#endif
