#ifndef BENCH_RATIO_TABLE_H
#define BENCH_RATIO_TABLE_H

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace Zudunmaf::bench
{

/// Reports runs as the console does and keeps the lowest time of each work, so that the table of ratios can be
/// printed behind them: what else the machine does only ever adds to a time. A run is named WORK/SUBJECT/SIZE.
class RatioTable : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;

    /// Keeps a figure that is no time, such as bytes.
    void keep(const std::string &name, double figure) { m_figures[name] = figure; }

    /// Prints each ratio beside its goal; false where one is over it.
    bool print() const;

private:
    void keepLowest(const std::string &name, double figure);
    double figure(const std::string &name) const;
    bool printRow(const std::string &title, const std::string &above, const std::string &below,
                  double goal) const;

    std::map<std::string, double> m_figures;
};

} // namespace Zudunmaf::bench

#endif
