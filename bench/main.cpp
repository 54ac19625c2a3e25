// Times the dialogs and their peers at three sizes and prints the ratios. Needs a Release build; runs offscreen.
#include "matching.h"
#include "ratio_table.h"
#include "trials.h"

#include <QApplication>

#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

using namespace Zudunmaf::bench;

namespace
{

/// What the user waits for.
struct Wait {
    const char *title;
    MakeTrial work;
};

constexpr Wait waits[] = {
    {"open", open<FilterSubject>},
    {"open assign", open<AssignSubject>},
    {"key", key<FilterSubject>},
    {"key assign, 1,000 chosen", keyAmongChosen},
    {"wildcard", wildcard<FilterSubject>},
    {"entity", entity<FilterSubject>},
    {"group", group<FilterSubject>},
    {"add 1,000", add<FilterSubject, 1000>},
    {"remove 1,000", remove<FilterSubject, 1000>},
    {"lines", lines},
    {"units", units<FilterSubject>},
    {"units assign", units<AssignSubject>},
};

/// The goal is that the work `above` takes at most `goal` times as long as the work `below`.
struct Contest {
    const char *title;
    double goal;
    MakeTrial above;
    int sizeAbove;
    MakeTrial below;
    int sizeBelow;
};

constexpr Contest against(const char *title, double goal, int size, MakeTrial work, MakeTrial peer)
{
    return {title, goal, work, size, peer, size};
}

constexpr Contest growth(const char *title, double goal, MakeTrial work)
{
    return {title, goal, work, 100000, work, 10000};
}

constexpr Contest contests[] = {
    against("open against floor, 1,000", 1.2, 1000, open<FilterSubject>, open<FloorDialog>),
    against("key against floor, 1,000", 0.8, 1000, key<FilterSubject>, key<FloorDialog>),
    against("key against proxy, 1,000", 1.0, 1000, key<FilterSubject>, key<ProxyDialog>),
    against("wildcard against proxy, 1,000", 1.0, 1000, wildcard<FilterSubject>, wildcard<ProxyDialog>),
    against("open against floor, 10,000", 1.6, 10000, open<FilterSubject>, open<FloorDialog>),
    against("key against floor, 10,000", 1.0, 10000, key<FilterSubject>, key<FloorDialog>),
    against("key against proxy, 10,000", 0.8, 10000, key<FilterSubject>, key<ProxyDialog>),
    against("wildcard against proxy, 10,000", 0.5, 10000, wildcard<FilterSubject>, wildcard<ProxyDialog>),
    against("open against floor, 100,000", 2.0, 100000, open<FilterSubject>, open<FloorDialog>),
    against("key against floor, 100,000", 1.2, 100000, key<FilterSubject>, key<FloorDialog>),
    against("key against proxy, 100,000", 0.2, 100000, key<FilterSubject>, key<ProxyDialog>),
    against("wildcard against proxy, 100,000", 0.1, 100000, wildcard<FilterSubject>, wildcard<ProxyDialog>),
    growth("open, growth", 10, open<FilterSubject>),
    growth("key, growth", 10, key<FilterSubject>),
    growth("wildcard, growth", 12, wildcard<FilterSubject>),
    growth("add 1,000 filter, growth", 1.5, add<FilterSubject, 1000>),
    growth("add 1,000 assign, growth", 1.5, add<AssignSubject, 1000>),
    growth("remove 1,000 filter, growth", 1.5, remove<FilterSubject, 1000>),
    growth("remove 1,000 assign, growth", 1.5, remove<AssignSubject, 1000>),
    growth("add all filter, growth", 12, add<FilterSubject, AllRows>),
    growth("add all assign, growth", 12, add<AssignSubject, AllRows>),
    growth("remove all filter, growth", 12, remove<FilterSubject, AllRows>),
    growth("remove all assign, growth", 12, remove<AssignSubject, AllRows>),
};

/// Enough for a stable median, few enough for a run of some minutes.
int repetitions(int size)
{
    return size <= 1000 ? 101 : size <= 10000 ? 31 : 9;
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void enroll(const std::string &name, int size, std::function<void(benchmark::State &)> run)
{
    benchmark::RegisterBenchmark(name.c_str(), std::move(run))
        ->Iterations(repetitions(size))
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

void enrollWait(const Wait &wait, int size)
{
    enroll(wait.title + ('/' + std::to_string(size)), size, [&wait, size](benchmark::State &state) {
        const Trial trial = wait.work(size);
        for (auto _ : state)
            state.SetIterationTime(trial());
    });
}

/// Times the two alternately, so that a temporarily slow machine slows both.
void enrollContest(const Contest &contest)
{
    enroll(contest.title, contest.sizeAbove, [&contest](benchmark::State &state) {
        const Trial above = contest.above(contest.sizeAbove);
        const Trial below = contest.below(contest.sizeBelow);
        std::vector<double> ratios;
        for (auto _ : state) {
            const double seconds = above();
            if (contest.sizeAbove != contest.sizeBelow)
                below(); // warms up the caches after the large one
            ratios.push_back(seconds / below());
            state.SetIterationTime(seconds);
        }
        state.counters[RatioTable::RatioCounter] = median(ratios);
        state.counters[RatioTable::GoalCounter] = contest.goal;
    });
}

/// Small sizes first: large ones leave a fragmented heap.
void enrollAll()
{
    for (const int size : {1000, 10000, 100000}) {
        for (const Contest &contest : contests) {
            if (contest.sizeAbove == size)
                enrollContest(contest);
        }
        for (const Wait &wait : waits)
            enrollWait(wait, size);
    }
}

/// Returns the allocated bytes, including blocks with their own mapping.
double bytesInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

template <class Subject>
double heldBytes(int size)
{
    const double before = bytesInUse();
    const auto subject = shown<Subject>(size);
    return bytesInUse() - before;
}

/// Returns the bytes per attribute, relative to a dialog with an empty dictionary.
template <class Subject>
double bytesPerAttribute(int size)
{
    loadDictionary(size);
    loadDictionary(0);
    heldBytes<Subject>(0); // what Qt allocates once
    const double empty = heldBytes<Subject>(0);
    return (heldBytes<Subject>(size) - empty) / size;
}

/// Measures in a child process, which starts with an unused heap.
double measuredApart(double (*measure)(int), int size)
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("cannot create a pipe");
    double figure = std::nan("");
    const pid_t child = fork();
    if (child == 0) {
        int argc = 1;
        char name[] = "zudunmaf_bench";
        char *argv[] = {name, nullptr};
        QApplication application(argc, argv);
        figure = measure(size);
        _exit(write(ends[1], &figure, sizeof figure) == sizeof figure ? 0 : 1);
    }
    close(ends[1]);
    if (child < 0 || read(ends[0], &figure, sizeof figure) != sizeof figure)
        qFatal("the child process has not measured anything");
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return figure;
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform warns about size hints for each window.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    RatioTable table;
    table.add("bytes per attribute, filter", measuredApart(bytesPerAttribute<FilterSubject>, 100000), 1300);
    table.add("bytes per attribute, assign", measuredApart(bytesPerAttribute<AssignSubject>, 100000), 650);
    table.add("ms, 1,000,000 features, ConditionMatcher", secondsToMatch(1000000) * 1e3, 1000);

    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    enrollAll();
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.print() ? 0 : 1;
}
