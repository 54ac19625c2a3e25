// A dictionary of four attributes and a line: a byte with the types, four labels, each ended by a newline, and the line.
// The condition of a line that is read gives the same line again.
#include "gdm/conditions/restore_target.h"
#include "gdm/gdm_qt.h"
#include "gdm/host/dml_dictionary.h"

#include <QVector>

#include <cstring>
#include <memory>

using namespace Zudunmaf;

static DmlAttrDef definitions[4];

/// Replaces that of the stand-in.
extern "C" int dml__atr_next(int, int, unsigned int, int *cursor, DmlAttrDef **definition)
{
    *definition = *cursor < 4 ? &definitions[(*cursor)++] : nullptr;
    return 0;
}

static void makeDefinitions(int types, const QByteArrayList &labels)
{
    static const char *const entries[] = {"red", "", "b = c", "deep green"};
    for (int i = 0; i < 4; ++i) {
        DmlAttrDef &made = definitions[i];
        std::memset(static_cast<void *>(&made), 0, sizeof made);
        made.type = 1 + (types >> 2 * i) % 4;
        qsnprintf(made.name, sizeof made.name, "%d", i);
        qstrncpy(made.prompt, labels.at(i).constData(), sizeof made.prompt);
        made.unitsClass = i - 1;
        if (made.type == DmlAttrOption) {
            made.optionList = entries;
            made.optionCount = 4;
        } else if (made.type == DmlAttrInteger) {
            made.intMin = -100;
            made.intMax = 100;
        } else if (made.type == DmlAttrFloat) {
            made.floatMin = -0.0626;
            made.floatMax = 1e30;
        }
    }
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArrayList parts =
        QByteArray(reinterpret_cast<const char *>(data) + 1, int(size) - 1 + int(size == 0)).split('\n');
    if (size == 0 || parts.size() < 5)
        return 0;
    makeDefinitions(data[0], parts);
    const QString line = QString::fromUtf8(parts.mid(4).join('\n'));
    const LineResult result = conditionsFromLines({line}, 0, LabelsByPrompt).first();
    if (result.reason.isEmpty() != (result.status == LineRead))
        __builtin_trap();
    if (result.status != LineRead)
        return 0;

    AttrFilterLWI item;
    item.setDisplayPrompt(true);
    item.setDmlAttribute(QVariant::fromValue<void *>(&definitions[result.condition.name.toInt()]));
    RestoreTarget target;
    target.available << &item;
    QString restored;
    target.add = [&restored](const QTableWidgetItem &added) {
        restored = added.data(DmlAttrFilterTextRole).toString();
        return true;
    };
    if (restoreConditions({result.condition}, target).first().status != RestoreDone || restored != line)
        __builtin_trap();
    return 0;
}
