#include "gdm/conditions/chosen_items.h"

#include "gdm/conditions/number_units.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/feature_attr_lwi.h"

#include <QByteArray>

namespace Zudunmaf
{

namespace
{

/// Returns the text without the last character if the end of the field has cut it.
QString wholeCharacters(const char (&field)[200])
{
    const FieldText<sizeof field> text(field);
    const QByteArray all(text.bytes());
    const int mostBytes = int(sizeof field) - 1;
    for (int left = int(all.size()); all.size() >= mostBytes && left > mostBytes - 4; --left) {
        const QString whole = QString::fromLocal8Bit(all.left(left).constData());
        if (whole.toLocal8Bit() == all.left(left))
            return whole;
    }
    return QString::fromLocal8Bit(all.constData());
}

void readSetCondition(const DmlAttrDef &definition, const DmlAttrValue &record, AttrCondition *condition)
{
    condition->isSet = true;
    switch (definition.type) {
    case DmlAttrText:
        condition->text = wholeCharacters(record.text);
        break;
    case DmlAttrOption: {
        const char *entry = optionEntry(definition, record.option);
        condition->isSet = entry != nullptr;
        condition->text = QString(entry ? entry : "");
        break;
    }
    case DmlAttrInteger:
        condition->low = record.intLow;
        condition->high = record.intHigh;
        break;
    case DmlAttrFloat:
        condition->low = record.floatLow;
        condition->high = record.floatHigh;
        condition->units = definition.unitsClass;
        condition->unitsText = textOfUnits(definition.unitsClass);
        break;
    default:
        break;
    }
}

QVariant typedValue(int type, const QVariant &value)
{
    const bool isText = type == DmlAttrText || type == DmlAttrOption;
    if (compat::isNullVariant(value))
        return isText ? QVariant(QString()) : QVariant();
    switch (type) {
    case DmlAttrBoolean:
        return value.toBool();
    case DmlAttrText:
    case DmlAttrOption:
        return value.toString();
    case DmlAttrInteger:
        return value.toInt();
    case DmlAttrFloat:
        return value.toDouble();
    default:
        return QVariant();
    }
}

} // namespace

AttrCondition conditionOf(const AttrFilterLWI &item)
{
    AttrCondition condition;
    const DmlAttrDef *definition = definitionIn(item.dmlAttribute());
    if (!definition)
        return condition;
    condition.name = fieldString(definition->name);
    condition.type = definition->type;
    const DmlAttrValue *record = recordIn<const DmlAttrValue>(item.attrValue());
    if (record && record->isSet)
        readSetCondition(*definition, *record, &condition);
    return condition;
}

AttrAssignment assignmentOf(const FeatureAttrLWI &item)
{
    AttrAssignment assignment;
    const DmlAttrDef *definition = definitionIn(item.dmlAttribute());
    if (!definition)
        return assignment;
    assignment.name = fieldString(definition->name);
    assignment.type = definition->type;
    assignment.value = typedValue(definition->type, item.attrValue());
    if (definition->type == DmlAttrFloat) {
        assignment.units = definition->unitsClass;
        assignment.unitsText = textOfUnits(definition->unitsClass);
    }
    return assignment;
}

} // namespace Zudunmaf
