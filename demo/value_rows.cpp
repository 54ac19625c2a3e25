#include "value_rows.h"

#include "gdm/host/gen_services.h"
#include "gdm/items/attr_records.h"
#include "gdm/items/dml_attr_lwi.h"
#include "gen/gen_control.h"
#include "printed_number.h"

#include <QStringList>

#include <algorithm>

namespace Zudunmaf::demo
{

namespace
{

/// The dimension of a code; empty for -1, which goes with nothing.
QString dimensionOf(int code)
{
    const QVector<gen::UnitInfo> units = gen::units();
    const auto unit = std::find_if(units.begin(), units.end(),
                                   [code](const gen::UnitInfo &candidate) { return candidate.code == code; });
    return unit == units.end() ? QString() : unit->dimension;
}

} // namespace

QString ValueRows::takeLine(const QString &line)
{
    const int tab = int(line.indexOf(QLatin1Char('\t')));
    const QString name = tab < 0 ? line : line.left(tab);
    const DmlAttrLWI *offered = find(name);
    if (!offered)
        return unknown(name);
    if (holds(*offered))
        return QStringLiteral("'%1' has a value already").arg(name);
    if (tab < 0) {
        add(*offered);
        return QString();
    }
    // An item takes a text that makes no sense for a 0: here it is an error.
    const QString value = line.mid(tab + 1);
    const QString problem = problemOf(definitionOf(*offered), value);
    if (problem.isEmpty())
        add(*offered).setValueFromString(value);
    return problem;
}

QString ValueRows::problemOf(const DmlAttrDef &definition, const QString &value)
{
    switch (definition.type) {
    case DmlAttrInteger:
        return PrintedNumber::problemOfInteger(value, definition.intMin, definition.intMax);
    case DmlAttrFloat:
        return problemOfFloat(definition, value);
    case DmlAttrOption:
        return problemOfOption(definition, value);
    case DmlAttrBoolean:
        return value.isEmpty() ? QString() : QStringLiteral("a boolean has no value to set");
    default:
        return QString();
    }
}

QString ValueRows::problemOfFloat(const DmlAttrDef &definition, const QString &value)
{
    const QStringList parts = value.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.size() != 2)
        return PrintedNumber::problemOfFloat(value.trimmed(), definition.floatMin, definition.floatMax);

    const int code = gen__torvex_get_str_units(parts.last().toLocal8Bit().constData());
    const QString dimension = dimensionOf(definition.unitsClass);
    if (dimension.isEmpty() || dimensionOf(code) != dimension)
        return QStringLiteral("'%1' are no units of '%2'")
            .arg(parts.last(), QString::fromUtf8(definition.name));
    float minimum = float(definition.floatMin);
    float maximum = float(definition.floatMax);
    gen__torvex_units_convert_2(&minimum, definition.unitsClass, code);
    gen__torvex_units_convert_2(&maximum, definition.unitsClass, code);
    return PrintedNumber::problemOfFloat(parts.first(), double(minimum), double(maximum));
}

QString ValueRows::problemOfOption(const DmlAttrDef &definition, const QString &value)
{
    // An option without a default is printed with an empty value.
    if (value.isEmpty())
        return QString();
    for (int index = 0; index < definition.optionCount; ++index) {
        if (QString::fromUtf8(definition.optionList[index]) == value)
            return QString();
    }
    return QStringLiteral("'%1' is no option of '%2'").arg(value, QString::fromUtf8(definition.name));
}

} // namespace Zudunmaf::demo
