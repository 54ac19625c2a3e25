// Times the dialogs at three sizes beside two peers and prints the ratios. Run offscreen, from a Release
// build.
#include "bench_dictionary.h"
#include "dialog_subject.h"
#include "gdm/gdm_qt.h"
#include "peers.h"
#include "ratio_table.h"

#include <QApplication>
#include <QElapsedTimer>

#include <malloc.h>
#include <memory>

using namespace Zudunmaf;
using namespace Zudunmaf::bench;

namespace
{

using FilterSubject = DialogSubject<AttributesFilterDialog>;
using AssignSubject = DialogSubject<FeatureAttributesDialog>;

/// Seconds until the work is done and the screen is up to date.
template <class Work>
double timed(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    QApplication::processEvents();
    return double(timer.nsecsElapsed()) * 1e-9;
}

template <class Subject>
std::unique_ptr<Subject> opened(int size)
{
    if constexpr (std::is_constructible_v<Subject, QStringList>)
        return std::make_unique<Subject>(attributeNames(size));
    else
        return std::make_unique<Subject>(size);
}

template <class Subject>
std::unique_ptr<Subject> shown(int size)
{
    loadDictionary(size);
    auto subject = opened<Subject>(size);
    subject->show();
    QApplication::processEvents();
    return subject;
}

/// One key that narrows, one that widens, and clearing: the mean of the three.
template <class Subject>
void key(benchmark::State &state)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    for (auto _ : state) {
        subject->setFilter(QStringLiteral("pa"));
        QApplication::processEvents();
        double seconds = timed([&] { subject->setFilter(QStringLiteral("pad")); });
        seconds += timed([&] { subject->setFilter(QStringLiteral("pa")); });
        seconds += timed([&] { subject->setFilter(QString()); });
        state.SetIterationTime(seconds / 3);
    }
}

template <class Subject>
void wildcard(benchmark::State &state)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    for (auto _ : state) {
        state.SetIterationTime(timed([&] { subject->setFilter(QStringLiteral("_?3")); }));
        subject->setFilter(QString());
        QApplication::processEvents();
    }
}

template <class Subject>
void open(benchmark::State &state)
{
    const int size = int(state.range(0));
    loadDictionary(size);
    const QStringList names = attributeNames(size);
    for (auto _ : state) {
        std::unique_ptr<Subject> subject;
        state.SetIterationTime(timed([&] {
            if constexpr (std::is_constructible_v<Subject, QStringList>)
                subject = std::make_unique<Subject>(names);
            else
                subject = std::make_unique<Subject>(size);
            subject->show();
        }));
    }
}

template <class Subject>
void entity(benchmark::State &state)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    for (auto _ : state) {
        state.SetIterationTime(timed([&] { subject->setEntity(2); }));
        subject->setEntity(8);
        QApplication::processEvents();
    }
}

template <class Subject>
void group(benchmark::State &state)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    for (auto _ : state) {
        state.SetIterationTime(timed([&] { subject->setGroup(7); }));
        subject->setGroup(0);
        QApplication::processEvents();
    }
}

/// Adds rows and removes them again; times the one or the other.
template <class Subject>
void transfer(benchmark::State &state, int count, bool adding)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    const int rows = count ? count : int(state.range(0));
    for (auto _ : state) {
        const double added = timed([&] { subject->add(rows); });
        if (subject->chosenCount() != rows)
            state.SkipWithError("not all rows were added");
        const double removed = timed([&] { subject->remove(rows); });
        if (subject->chosenCount() != 0)
            state.SkipWithError("not all rows were removed");
        state.SetIterationTime(adding ? added : removed);
    }
}

void lines(benchmark::State &state)
{
    const auto subject = shown<FilterSubject>(int(state.range(0)));
    subject->add(1000);
    for (auto _ : state)
        state.SetIterationTime(
            timed([&] { benchmark::DoNotOptimize(subject->dialog().getFiltersAsStringList()); }));
}

void assignKey(benchmark::State &state)
{
    const auto subject = shown<AssignSubject>(int(state.range(0)));
    subject->add(1000);
    for (auto _ : state) {
        state.SetIterationTime(timed([&] { subject->setFilter(QStringLiteral("pad")); }));
        subject->setFilter(QString());
        QApplication::processEvents();
    }
}

template <class Subject>
void units(benchmark::State &state)
{
    const auto subject = shown<Subject>(int(state.range(0)));
    int code = 0;
    for (auto _ : state)
        state.SetIterationTime(timed([&] { subject->dialog().setDisplayUnits(code = 3 - code); }));
}

/// What the program holds, blocks that have a mapping of their own included.
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

/// Bytes for each attribute, above a dialog over an empty dictionary.
template <class Subject>
double bytesPerAttribute(int size)
{
    loadDictionary(size);
    loadDictionary(0);
    heldBytes<Subject>(0); // what Qt allocates once
    const double empty = heldBytes<Subject>(0);
    return (heldBytes<Subject>(size) - empty) / size;
}

template <class Work>
void enroll(const std::string &name, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)
        ->Arg(1000)
        ->Arg(10000)
        ->Arg(100000)
        ->UseManualTime()
        ->MinTime(0.2)
        ->Repetitions(3)
        ->Unit(benchmark::kMillisecond);
}

void enrollAll()
{
    enroll("key/filter", key<FilterSubject>);
    enroll("key/proxy", key<ProxyDialog>);
    enroll("key/floor", key<FloorDialog>);
    enroll("wildcard/filter", wildcard<FilterSubject>);
    enroll("wildcard/proxy", wildcard<ProxyDialog>);
    enroll("open/filter", open<FilterSubject>);
    enroll("open/assign", open<AssignSubject>);
    enroll("open/floor", open<FloorDialog>);
    enroll("entity/filter", entity<FilterSubject>);
    enroll("group/filter", group<FilterSubject>);
    for (const bool adding : {true, false}) {
        const std::string verb = adding ? "add" : "remove";
        for (const int count : {1000, 0}) {
            const std::string work = verb + (count ? "1000" : "all");
            enroll(work + "/filter",
                   [=](benchmark::State &state) { transfer<FilterSubject>(state, count, adding); });
            enroll(work + "/assign",
                   [=](benchmark::State &state) { transfer<AssignSubject>(state, count, adding); });
        }
    }
    enroll("lines/filter", lines);
    enroll("key/assign", assignKey);
    enroll("units/filter", units<FilterSubject>);
    enroll("units/assign", units<AssignSubject>);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The offscreen platform says each time that it has no size hints.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    enrollAll();

    RatioTable table;
    // Before anything else: the pool of records keeps what it once took.
    table.keep("memory/filter/100000", bytesPerAttribute<FilterSubject>(100000));
    table.keep("memory/assign/100000", bytesPerAttribute<AssignSubject>(100000));
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.print() ? 0 : 1;
}
