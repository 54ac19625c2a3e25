#include "ratio_table.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace Zudunmaf::bench
{

namespace
{

/// The figure `above` is to be at most `goal` times the figure `below`; an empty `below` makes it absolute.
struct Goal {
    const char *title;
    const char *above;
    const char *below;
    double goal;
};

const Goal goals[] = {
    {"key against proxy, 1,000", "key/filter/1000", "key/proxy/1000", 1.0},
    {"key against proxy, 10,000", "key/filter/10000", "key/proxy/10000", 0.8},
    {"key against proxy, 100,000", "key/filter/100000", "key/proxy/100000", 0.2},
    {"key growth", "key/filter/100000", "key/filter/10000", 10},
    {"key against floor, 1,000", "key/filter/1000", "key/floor/1000", 0.8},
    {"key against floor, 10,000", "key/filter/10000", "key/floor/10000", 1.0},
    {"key against floor, 100,000", "key/filter/100000", "key/floor/100000", 1.2},
    {"wildcard against proxy, 1,000", "wildcard/filter/1000", "wildcard/proxy/1000", 1.0},
    {"wildcard against proxy, 10,000", "wildcard/filter/10000", "wildcard/proxy/10000", 0.5},
    {"wildcard against proxy, 100,000", "wildcard/filter/100000", "wildcard/proxy/100000", 0.1},
    {"wildcard growth", "wildcard/filter/100000", "wildcard/filter/10000", 12},
    {"open against floor, 1,000", "open/filter/1000", "open/floor/1000", 1.2},
    {"open against floor, 10,000", "open/filter/10000", "open/floor/10000", 1.6},
    {"open against floor, 100,000", "open/filter/100000", "open/floor/100000", 2.0},
    {"open growth", "open/filter/100000", "open/filter/10000", 10},
    {"add 1,000, filter, growth", "add1000/filter/100000", "add1000/filter/10000", 1.5},
    {"add 1,000, assign, growth", "add1000/assign/100000", "add1000/assign/10000", 1.5},
    {"remove 1,000, filter, growth", "remove1000/filter/100000", "remove1000/filter/10000", 1.5},
    {"remove 1,000, assign, growth", "remove1000/assign/100000", "remove1000/assign/10000", 1.5},
    {"add all, filter, growth", "addall/filter/100000", "addall/filter/10000", 12},
    {"add all, assign, growth", "addall/assign/100000", "addall/assign/10000", 12},
    {"remove all, filter, growth", "removeall/filter/100000", "removeall/filter/10000", 12},
    {"remove all, assign, growth", "removeall/assign/100000", "removeall/assign/10000", 12},
    {"bytes per attribute, filter", "memory/filter/100000", "", 1300},
    {"bytes per attribute, assign", "memory/assign/100000", "", 650},
};

} // namespace

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        // The name goes on behind the size with how the time was taken.
        const std::string name = run.benchmark_name();
        const std::size_t work = name.find('/');
        const std::size_t subject = name.find('/', work + 1);
        const std::size_t size = name.find('/', subject + 1);
        if (run.run_type == Run::RT_Iteration)
            keepLowest(name.substr(0, size), run.GetAdjustedRealTime());
    }
}

void RatioTable::keepLowest(const std::string &name, double figure)
{
    const auto kept = m_figures.emplace(name, figure).first;
    kept->second = std::min(kept->second, figure);
}

double RatioTable::figure(const std::string &name) const
{
    const auto found = m_figures.find(name);
    return found == m_figures.end() ? std::nan("") : found->second;
}

bool RatioTable::printRow(const std::string &title, const std::string &above, const std::string &below,
                          double goal) const
{
    const double value = below.empty() ? figure(above) : figure(above) / figure(below);
    if (std::isnan(value))
        return true; // not measured in this run
    const bool reached = value <= goal;
    std::printf("%-34s %10.2f   at most %7.1f   %s\n", title.c_str(), value, goal,
                reached ? "reached" : "OVER");
    return reached;
}

bool RatioTable::print() const
{
    std::printf("\n");
    bool reached = true;
    for (const Goal &goal : goals)
        reached &= printRow(goal.title, goal.above, goal.below, goal.goal);
    return reached;
}

} // namespace Zudunmaf::bench
