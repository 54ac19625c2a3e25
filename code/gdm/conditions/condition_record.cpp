#include "gdm/conditions/condition_record.h"

#include "gdm/conditions/limit_check.h"
#include "gdm/conditions/number_units.h"
#include "gdm/items/attr_access.h"

#include <QByteArray>

#include <cstring>

namespace Zudunmaf
{

namespace
{

RestoreResult fillText(const QString &text, DmlAttrValue *record)
{
    const QByteArray bytes = text.toLocal8Bit();
    if (std::size_t(bytes.size()) >= sizeof record->text || QString::fromLocal8Bit(bytes.constData()) != text)
        return refusal(RestoreOutOfRange, "the text '%1' does not fit into 199 bytes of the local encoding",
                       text);
    std::memset(record->text, 0, sizeof record->text);
    std::memcpy(record->text, bytes.constData(), std::size_t(bytes.size()));
    return RestoreResult();
}

RestoreResult fillOption(const QString &text, const DmlAttrDef &definition, DmlAttrValue *record)
{
    const int index = indexOfOption(definition, text);
    if (index == -1)
        return refusal(RestoreOptionGone, "there is no option '%1'", text);
    record->option = index;
    return RestoreResult();
}

RestoreResult fillIntegers(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record)
{
    QString problem = problemOfInteger(condition.low, definition);
    if (problem.isEmpty())
        problem = problemOfInteger(condition.high, definition);
    if (problem.isEmpty())
        problem = problemOfOrder(condition.low, condition.high);
    if (problem.isEmpty()) {
        record->intLow = std::int32_t(condition.low);
        record->intHigh = std::int32_t(condition.high);
    }
    return rangeResult(problem);
}

RestoreResult fillFloats(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record)
{
    const NumberUnits units(condition.units, condition.unitsText, definition.unitsClass);
    if (units.isUnknown() || units.isOneUnitless())
        return unknownUnits(condition.unitsText);
    const double low = units.converted(condition.low);
    const double high = units.converted(condition.high);
    QString problem = problemOfFloat(low, definition, -1);
    if (problem.isEmpty())
        problem = problemOfFloat(high, definition, -1);
    if (problem.isEmpty())
        problem = problemOfOrder(low, high);
    if (problem.isEmpty()) {
        record->floatLow = low;
        record->floatHigh = high;
    }
    return rangeResult(problem);
}

RestoreResult fillByType(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record)
{
    switch (definition.type) {
    case DmlAttrText:
        return fillText(condition.text, record);
    case DmlAttrOption:
        return fillOption(condition.text, definition, record);
    case DmlAttrInteger:
        return fillIntegers(condition, definition, record);
    case DmlAttrFloat:
        return fillFloats(condition, definition, record);
    default:
        return RestoreResult();
    }
}

} // namespace

RestoreResult fillRecord(const AttrCondition &condition, const DmlAttrDef &definition, DmlAttrValue *record)
{
    prime(*record, definition);
    if (condition.type != definition.type)
        return refusal(RestoreTypeChanged, "'%1' has another type now", condition.name);
    if (!condition.isSet)
        return RestoreResult();
    const RestoreResult result = fillByType(condition, definition, record);
    record->isSet = result.status == RestoreDone ? 1 : 0;
    return result;
}

int indexOfOption(const DmlAttrDef &definition, const QString &text)
{
    for (int index = 0; index < definition.optionCount; ++index) {
        const char *entry = optionEntry(definition, index);
        if (entry && QString(entry) == text)
            return index;
    }
    return -1;
}

RestoreResult refusal(RestoreStatus status, const char *reason, const QString &quoted)
{
    RestoreResult result;
    result.status = status;
    result.reason = QString(QLatin1String(reason)).arg(quoted);
    return result;
}

RestoreResult rangeResult(const QString &problem)
{
    RestoreResult result;
    result.status = problem.isEmpty() ? RestoreDone : RestoreOutOfRange;
    result.reason = problem;
    return result;
}

RestoreResult unknownUnits(const QString &text)
{
    return refusal(RestoreUnknownUnits, "the units '%1' cannot be converted into those of the attribute",
                   text);
}

} // namespace Zudunmaf
