#include "ratio_table.h"

#include <cstdio>

namespace Zudunmaf::bench
{

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const auto ratio = run.counters.find(RatioCounter);
        const auto goal = run.counters.find(GoalCounter);
        if (ratio != run.counters.end() && goal != run.counters.end())
            add(run.run_name.function_name, ratio->second, goal->second);
    }
}

bool RatioTable::print() const
{
    std::printf("\n");
    bool reached = true;
    for (const Row &row : m_rows) {
        const bool isReached = row.figure <= row.goal;
        std::printf("%-34s %10.2f   at most %7.1f   %s\n", row.title.c_str(), row.figure, row.goal,
                    isReached ? "reached" : "OVER");
        reached = reached && isReached;
    }
    return reached;
}

} // namespace Zudunmaf::bench
