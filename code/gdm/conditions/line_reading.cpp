#include "gdm/conditions/line_reading.h"

#include "gdm/conditions/condition_record.h"
#include "gdm/conditions/number_units.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/float_decimals.h"

#include <limits>

namespace Zudunmaf
{

namespace
{

/// The texts of both bounds of a line.
struct BoundTexts {
    QString low;
    QString high;
};

QString numberText(double number)
{
    return QString(QLatin1String("%1")).arg(number, 0, 'f', FloatDecimals);
}

/// Returns a character that the label does not contain.
QChar unusedCharacter(const QString &label)
{
    ushort code = 0xE000;
    while (label.contains(QChar(code)))
        ++code;
    return QChar(code);
}

/// Splits "low <= label <= high". QString::arg() can have replaced placeholders in the label with the upper bound, so
/// the text around the upper bound is made with the same calls as the line.
bool splitRange(const QString &label, const QString &line, BoundTexts *bounds)
{
    const int lowEnd = int(line.indexOf(QLatin1Char(' ')));
    if (lowEnd <= 0)
        return false;
    bounds->low = line.left(lowEnd);
    const QChar mark = unusedCharacter(label);
    const QString pattern = QString(QLatin1String("%1 <= %2 <= %3"))
                                .arg(QString(QLatin1String("")))
                                .arg(label, 0, QLatin1Char(' '))
                                .arg(QString(mark));
    const QStringList parts = pattern.split(mark);
    const int placeholders = int(parts.size()) - 1;
    const int width = int(line.size()) - lowEnd - (int(pattern.size()) - placeholders);
    if (placeholders < 1 || width <= 0 || width % placeholders != 0)
        return false;
    bounds->high = line.mid(lowEnd + int(parts.first().size()), width / placeholders);
    return line.mid(lowEnd) == parts.join(bounds->high);
}

/// Returns the line of the attribute with this record.
QString lineOf(const DmlAttrDef &definition, bool byPrompt, const DmlAttrValue &record)
{
    AttrFilterLWI item;
    item.setDisplayPrompt(byPrompt);
    item.setDisplayValue(true);
    item.setDmlAttribute(variantOfRecord(&definition));
    item.setAttrValue(variantOfRecord(&record));
    return item.toString();
}

bool readIntegers(const BoundTexts &bounds, DmlAttrValue *record)
{
    bool isLow = false;
    bool isHigh = false;
    record->intLow = bounds.low.toInt(&isLow);
    record->intHigh = bounds.high.toInt(&isHigh);
    return isLow && isHigh;
}

/// Returns the number of the text. Reads -0.000 as the greatest number below zero, because the line of zero has no
/// sign.
double numberIn(const QString &text, bool *isNumber)
{
    const double number = text.toDouble(isNumber);
    const bool isRoundedAway = number == 0 && text.startsWith(QLatin1Char('-'));
    return isRoundedAway ? -std::numeric_limits<double>::denorm_min() : number;
}

/// Returns the number, or the limit if the number is out of range and the limit has the same text.
double withinLimits(double number, const QString &text, const DmlAttrDef &definition)
{
    if (number < definition.floatMin && text == numberText(definition.floatMin))
        return definition.floatMin;
    if (number > definition.floatMax && text == numberText(definition.floatMax))
        return definition.floatMax;
    return number;
}

bool readFloats(const BoundTexts &bounds, const DmlAttrDef &definition, DmlAttrValue *record)
{
    bool isLow = false;
    bool isHigh = false;
    record->floatLow = withinLimits(numberIn(bounds.low, &isLow), bounds.low, definition);
    record->floatHigh = withinLimits(numberIn(bounds.high, &isHigh), bounds.high, definition);
    return isLow && isHigh;
}

/// Reads the bounds of the line into the condition. Name, type and isSet are set before.
bool readBounds(const DmlAttrDef &definition, bool byPrompt, const QString &line, AttrCondition *condition)
{
    BoundTexts bounds;
    DmlAttrValue record;
    prime(record, definition);
    record.isSet = 1;
    if (!splitRange(labelText(definition, byPrompt), line, &bounds))
        return false;
    const bool isInteger = definition.type == DmlAttrInteger;
    const bool areNumbers =
        isInteger ? readIntegers(bounds, &record) : readFloats(bounds, definition, &record);
    // The dialog prints each number in one way only.
    if (!areNumbers || lineOf(definition, byPrompt, record) != line)
        return false;
    condition->low = isInteger ? record.intLow : record.floatLow;
    condition->high = isInteger ? record.intHigh : record.floatHigh;
    if (!isInteger) {
        condition->units = definition.unitsClass;
        condition->unitsText = textOfUnits(definition.unitsClass);
    }
    return true;
}

bool readText(const DmlAttrDef &definition, bool byPrompt, const QString &line, AttrCondition *condition)
{
    const QString start =
        QString(QLatin1String("%1 = ")).arg(labelText(definition, byPrompt), 0, QLatin1Char(' '));
    if (!line.startsWith(start) || line.size() == start.size())
        return false;
    condition->text = line.mid(int(start.size()));
    return true;
}

LineStatus lineStatusOf(RestoreStatus status)
{
    switch (status) {
    case RestoreDone:
        return LineRead;
    case RestoreOptionGone:
        return LineOptionGone;
    default:
        return LineOutOfRange;
    }
}

} // namespace

LineResult readLineAs(const DmlAttrDef &definition, bool byPrompt, const QString &line)
{
    LineResult result;
    if (definition.type < DmlAttrBoolean || definition.type > DmlAttrFloat)
        return result;
    AttrCondition &condition = result.condition;
    condition.name = fieldString(definition.name);
    condition.type = definition.type;
    if (line == labelText(definition, byPrompt)) {
        result.status = LineRead;
        return result;
    }
    condition.isSet = true;
    const bool isText = definition.type == DmlAttrText || definition.type == DmlAttrOption;
    if (definition.type == DmlAttrBoolean || !(isText ? readText(definition, byPrompt, line, &condition)
                                                      : readBounds(definition, byPrompt, line, &condition)))
        return result;

    DmlAttrValue record;
    const RestoreResult fitting = fillRecord(condition, definition, &record);
    result.status = lineStatusOf(fitting.status);
    result.reason = fitting.reason;
    if (result.status == LineRead && lineOf(definition, byPrompt, record) != line)
        result.status = LineUnknown;
    return result;
}

} // namespace Zudunmaf
