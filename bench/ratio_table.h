#ifndef BENCH_RATIO_TABLE_H
#define BENCH_RATIO_TABLE_H

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace Zudunmaf::bench
{

/// A console reporter that also collects the runs with a goal and prints them as a table at the end.
class RatioTable : public benchmark::ConsoleReporter
{
public:
    /// The counters of a run with a goal: the measured ratio and its maximum.
    static constexpr char RatioCounter[] = "ratio";
    static constexpr char GoalCounter[] = "goal";

    void ReportRuns(const std::vector<Run> &runs) override;

    /// Adds a figure that is not a time, such as bytes.
    void add(const std::string &title, double figure, double goal)
    {
        m_rows.push_back({title, figure, goal});
    }

    /// Prints each figure and its goal. Returns false if a figure is above its goal.
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
