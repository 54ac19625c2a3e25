#include "gdm/host/gen_services.h"

#include "gen/gen_control.h"
#include "gen/units_table.h"

using namespace Zudunmaf::gen;

void gen__torvex_units_convert_2(float *value, int source, int target)
{
    convertUnits(value, source, target);
}

void gen__torvex_units_convert(void *, int *code, int displayUnits)
{
    *code = shownUnits(*code, displayUnits);
}

void gen__torvex_units_convert_f(float *value, int unitsClass, int code)
{
    convertUnits(value, code, unitsClass);
}

const char *gen__torvex_cur_units_str(int unitsClass, int displayUnits)
{
    const Unit *unit = unitOf(shownUnits(unitsClass, displayUnits));
    return unit ? unit->text : "";
}

int gen__torvex_get_str_units(const char *text)
{
    return codeOfUnit(QString::fromLocal8Bit(text));
}

QVector<UnitInfo> Zudunmaf::gen::units()
{
    QVector<UnitInfo> list;
    list.reserve(unitCount());
    for (int code = 0; code < unitCount(); ++code) {
        const Unit &unit = *unitOf(code);
        list.append({code, QString::fromLatin1(unit.text), QString::fromLatin1(nameOf(unit.dimension))});
    }
    return list;
}
