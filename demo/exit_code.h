#ifndef DEMO_EXIT_CODE_H
#define DEMO_EXIT_CODE_H

namespace Zudunmaf::demo
{

/// What the program tells whoever started it.
enum ExitCode {
    ExitAccepted = 0,  ///< OK; the lines are on standard output. Also help and version.
    ExitCancelled = 1, ///< Cancel; nothing is on standard output.
    ExitRefused = 2,   ///< An option or a file is not right; one line on standard error tells which.
    ExitWalkFailed = 3 ///< A step of a walk did not find what it expects; one line tells which.
};

} // namespace Zudunmaf::demo

#endif
