#ifndef HOST_CHECK_REPORT_H
#define HOST_CHECK_REPORT_H

#include "check.h"

#include <cstdio>

namespace Zudunmaf::hostcheck
{

/// Returns a text of the host as UTF-8 on one line: each byte that is not UTF-8, or a control character, as \xNN.
std::string printable(std::string bytes);

/// Prints what came of the checks and counts it. Several processes share one in shared memory.
class Report
{
public:
    /// Takes the standard output for itself: what others print there goes to the standard error.
    explicit Report(bool json);

    void add(const std::string &group, const std::string &promise, const Outcome &outcome);
    /// Call once, after the last check.
    void finish();
    int count(Verdict verdict) const { return m_counts[int(verdict)]; }

private:
    bool m_json;
    FILE *m_output;
    int m_counts[4] = {};
};

} // namespace Zudunmaf::hostcheck

#endif
