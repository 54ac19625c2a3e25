#include "gdm/conditions/json_entries.h"

#if GDM_HAS_JSON

namespace Zudunmaf
{

namespace
{

const char Name[] = "name";
const char Type[] = "type";
const char IsSet[] = "isSet";
const char Low[] = "low";
const char High[] = "high";
const char Text[] = "text";
const char Value[] = "value";
const char Units[] = "units";
const char UnitsText[] = "unitsText";

template <class Entry>
void writeUnits(const Entry &entry, QJsonObject *object)
{
    object->insert(QLatin1String(Units), entry.units);
    object->insert(QLatin1String(UnitsText), entry.unitsText);
}

template <class Entry>
void readUnits(JsonFields *fields, Entry *entry)
{
    entry->units = fields->integer(Units);
    entry->unitsText = fields->text(UnitsText);
}

QJsonValue jsonOfValue(int type, const QVariant &value)
{
    const bool isText = type == DmlAttrText || type == DmlAttrOption;
    if (!value.isValid() || (isText && value.toString().isNull()))
        return QJsonValue();
    switch (type) {
    case DmlAttrBoolean:
        return QJsonValue(value.toBool());
    case DmlAttrText:
    case DmlAttrOption:
        return QJsonValue(value.toString());
    case DmlAttrInteger:
        return QJsonValue(value.toInt());
    case DmlAttrFloat:
        return jsonOfNumber(value.toDouble());
    default:
        return QJsonValue();
    }
}

QVariant valueIn(int type, JsonFields *fields)
{
    const bool isText = type == DmlAttrText || type == DmlAttrOption;
    if (fields->any(Value).isNull())
        return isText ? QVariant(QString()) : QVariant();
    switch (type) {
    case DmlAttrBoolean:
        return fields->flag(Value);
    case DmlAttrText:
    case DmlAttrOption:
        return fields->text(Value);
    case DmlAttrInteger:
        return fields->integer(Value);
    case DmlAttrFloat:
        return fields->number(Value);
    default:
        fields->refuse(Value, QLatin1String("belongs to an unknown type and is not null"));
        return QVariant();
    }
}

} // namespace

QJsonObject jsonOfCondition(const AttrCondition &condition)
{
    QJsonObject object;
    object.insert(QLatin1String(Name), condition.name);
    object.insert(QLatin1String(Type), jsonOfType(condition.type));
    object.insert(QLatin1String(IsSet), condition.isSet);
    if (!condition.isSet)
        return object;
    if (condition.type == DmlAttrText || condition.type == DmlAttrOption)
        object.insert(QLatin1String(Text), condition.text);
    if (condition.type == DmlAttrInteger || condition.type == DmlAttrFloat) {
        object.insert(QLatin1String(Low), jsonOfNumber(condition.low));
        object.insert(QLatin1String(High), jsonOfNumber(condition.high));
    }
    if (condition.type == DmlAttrFloat)
        writeUnits(condition, &object);
    return object;
}

AttrCondition conditionIn(JsonFields *fields)
{
    AttrCondition condition;
    condition.name = fields->text(Name);
    condition.type = fields->type(Type);
    condition.isSet = fields->flag(IsSet);
    if (!condition.isSet)
        return condition;
    if (condition.type == DmlAttrText || condition.type == DmlAttrOption)
        condition.text = fields->text(Text);
    if (condition.type == DmlAttrInteger || condition.type == DmlAttrFloat) {
        condition.low = fields->number(Low);
        condition.high = fields->number(High);
    }
    if (condition.type == DmlAttrFloat)
        readUnits(fields, &condition);
    return condition;
}

QJsonObject jsonOfAssignment(const AttrAssignment &assignment)
{
    QJsonObject object;
    object.insert(QLatin1String(Name), assignment.name);
    object.insert(QLatin1String(Type), jsonOfType(assignment.type));
    object.insert(QLatin1String(Value), jsonOfValue(assignment.type, assignment.value));
    if (assignment.type == DmlAttrFloat)
        writeUnits(assignment, &object);
    return object;
}

AttrAssignment assignmentIn(JsonFields *fields)
{
    AttrAssignment assignment;
    assignment.name = fields->text(Name);
    assignment.type = fields->type(Type);
    assignment.value = valueIn(assignment.type, fields);
    if (assignment.type == DmlAttrFloat)
        readUnits(fields, &assignment);
    return assignment;
}

} // namespace Zudunmaf

#endif
