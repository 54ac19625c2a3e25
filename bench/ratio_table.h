#ifndef BENCH_RATIO_TABLE_H
#define BENCH_RATIO_TABLE_H

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace Zudunmaf::bench
{

/// Reports runs as the console does, and gathers those that have a goal, so that they can be printed as a table
/// behind all others.
class RatioTable : public benchmark::ConsoleReporter
{
public:
    /// The counters of a run that has a goal: what it came to, and what that is to be at most.
    static constexpr char RatioCounter[] = "ratio";
    static constexpr char GoalCounter[] = "goal";

    void ReportRuns(const std::vector<Run> &runs) override;

    /// Adds a figure that is no time, such as bytes.
    void add(const std::string &title, double figure, double goal)
    {
        m_rows.push_back({title, figure, goal});
    }

    /// Prints each figure beside its goal; false where one is over it.
    bool print() const;

private:
    struct Row {
        std::string title;
        double figure;
        double goal;
    };

    std::vector<Row> m_rows;
};

} // namespace Zudunmaf::bench

#endif
