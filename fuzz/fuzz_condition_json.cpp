// A JSON document of conditions or values. What is read is written and read again unchanged.
#include "gdm/gdm_qt.h"

using namespace Zudunmaf;

template <class Entry>
static void check(const QByteArray &json, bool (*read)(const QByteArray &, QList<Entry> *, DocumentProblem *),
                  QByteArray (*write)(const QList<Entry> &))
{
    QList<Entry> entries;
    QList<Entry> again;
    DocumentProblem problem;
    if (!read(json, &entries, &problem)) {
        if (problem.reason.isEmpty() || !entries.isEmpty())
            __builtin_trap();
        return;
    }
    if (!read(write(entries), &again, nullptr) || again != entries || write(again) != write(entries))
        __builtin_trap();
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), int(size));
    check<AttrCondition>(json, conditionsFromJson, conditionsToJson);
    check<AttrAssignment>(json, assignmentsFromJson, assignmentsToJson);
    return 0;
}
