#ifndef BENCH_TRIALS_H
#define BENCH_TRIALS_H

#include "bench_dictionary.h"
#include "dialog_subject.h"
#include "gdm/gdm_qt.h"
#include "peers.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <functional>
#include <memory>
#include <type_traits>

/// The works that are timed. Each function prepares one with a dictionary of `size` attributes and a new subject: a dialog
/// or a peer.
namespace Zudunmaf::bench
{

using FilterSubject = DialogSubject<AttributesFilterDialog>;
using AssignSubject = DialogSubject<FeatureAttributesDialog>;

/// Does the work once and returns its time in seconds. Can be called repeatedly.
using Trial = std::function<double()>;
using MakeTrial = Trial (*)(int size);

/// As many rows as the table has.
constexpr int AllRows = 0;

/// Processes events until none is left. One pass is not enough: a view delays part of its layout with a timer.
inline void settle()
{
    QEventLoop loop;
    while (loop.processEvents()) {
    }
}

/// Returns the seconds until the work is done and painted.
template <class Work>
double timed(Work work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    settle();
    return double(timer.nsecsElapsed()) * 1e-9;
}

template <class Subject>
std::unique_ptr<Subject> created(int size, const QStringList &names)
{
    if constexpr (std::is_constructible_v<Subject, QStringList>)
        return std::make_unique<Subject>(names);
    else
        return std::make_unique<Subject>(size);
}

template <class Subject>
std::shared_ptr<Subject> shown(int size)
{
    loadDictionary(size);
    std::shared_ptr<Subject> subject = created<Subject>(size, attributeNames(size));
    subject->show();
    settle();
    return subject;
}

template <class Subject>
Trial open(int size)
{
    loadDictionary(size);
    return [size, names = attributeNames(size)] {
        std::unique_ptr<Subject> subject;
        return timed([&] {
            subject = created<Subject>(size, names);
            subject->show();
        });
    };
}

/// One key that narrows, one that widens, and clearing the text: their mean.
template <class Subject>
Trial key(int size)
{
    return [subject = shown<Subject>(size)] {
        subject->setFilter(QStringLiteral("pa"));
        settle();
        double seconds = timed([&] { subject->setFilter(QStringLiteral("pad")); });
        seconds += timed([&] { subject->setFilter(QStringLiteral("pa")); });
        seconds += timed([&] { subject->setFilter(QString()); });
        return seconds / 3;
    };
}

/// Times `work` on the subject. `back` undoes it.
template <class Subject, class Work, class Back>
Trial undone(std::shared_ptr<Subject> subject, Work work, Back back)
{
    return [=] {
        const double seconds = timed([&] { work(*subject); });
        back(*subject);
        settle();
        return seconds;
    };
}

template <class Subject>
Trial wildcard(int size)
{
    return undone(
        shown<Subject>(size), [](Subject &subject) { subject.setFilter(QStringLiteral("_?3")); },
        [](Subject &subject) { subject.setFilter(QString()); });
}

template <class Subject>
Trial entity(int size)
{
    return undone(
        shown<Subject>(size), [](Subject &subject) { subject.setEntity(2); },
        [](Subject &subject) { subject.setEntity(8); });
}

template <class Subject>
Trial group(int size)
{
    return undone(
        shown<Subject>(size), [](Subject &subject) { subject.setGroup(7); },
        [](Subject &subject) { subject.setGroup(0); });
}

/// Adds rows and removes them. Returns the time of one of the two.
template <class Subject, int Rows, bool Adding>
Trial transfer(int size)
{
    return [subject = shown<Subject>(size), rows = Rows == AllRows ? size : Rows] {
        const double added = timed([&] { subject->add(rows); });
        if (subject->chosenCount() != rows)
            qFatal("not all rows were added");
        const double removed = timed([&] { subject->remove(rows); });
        if (subject->chosenCount() != 0)
            qFatal("not all rows were removed");
        return Adding ? added : removed;
    };
}

template <class Subject, int Rows>
Trial add(int size)
{
    return transfer<Subject, Rows, true>(size);
}

template <class Subject, int Rows>
Trial remove(int size)
{
    return transfer<Subject, Rows, false>(size);
}

/// "Assign Attributes" hides chosen attributes, so its key depends on how many there are.
inline Trial keyAmongChosen(int size)
{
    const auto subject = shown<AssignSubject>(size);
    subject->add(1000);
    return undone(
        subject, [](AssignSubject &dialog) { dialog.setFilter(QStringLiteral("pad")); },
        [](AssignSubject &dialog) { dialog.setFilter(QString()); });
}

inline Trial lines(int size)
{
    const auto subject = shown<FilterSubject>(size);
    subject->add(1000);
    return [subject] {
        return timed([&] {
            if (subject->dialog().getFiltersAsStringList().size() != 1000)
                qFatal("not all lines were given");
        });
    };
}

/// To other units and back: the mean of the two.
template <class Subject>
Trial units(int size)
{
    return [subject = shown<Subject>(size)] {
        double seconds = timed([&] { subject->dialog().setDisplayUnits(2); });
        seconds += timed([&] { subject->dialog().setDisplayUnits(1); });
        return seconds / 2;
    };
}

} // namespace Zudunmaf::bench

#endif
