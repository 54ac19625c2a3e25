#ifndef HOST_CHECK_REPORT_H
#define HOST_CHECK_REPORT_H

#include "check.h"

#include <cstdio>

namespace Zudunmaf::hostcheck
{

/// Runs all checks in a child process and prints their results. If the host ends the child or does not return in time,
/// the running check is broken, and another child continues with the next one. Returns the exit status of the program.
int runChecks(const Settings &settings);

/// Returns a text of the host as UTF-8 on one line: each byte that is not UTF-8, or a control character, as \xNN.
std::string printable(std::string bytes);

/// Prints the results of the checks and counts them. Several processes share one in shared memory.
class Report
{
public:
    static constexpr int GroupCount = int(Group::Dialogs) + 1, VerdictCount = int(Verdict::NotCheckable) + 1;

    /// Takes the standard output for itself: what others print there goes to the standard error.
    explicit Report(bool json);

    void add(Group group, const std::string &promise, const Outcome &outcome);
    /// Call once, after the last check. Returns the exit status of the program.
    int finish(bool isStrict);

private:
    bool m_json;
    FILE *m_output;
    bool m_isFirst = true;
    int m_counts[GroupCount][VerdictCount] = {};
};

} // namespace Zudunmaf::hostcheck

#endif
