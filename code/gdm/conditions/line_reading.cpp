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

QString printed(double number)
{
    return QString(QLatin1String("%1")).arg(number, 0, 'f', FloatDecimals);
}

/// A character that the label does not hold.
QChar markFor(const QString &label)
{
    ushort code = 0xE000;
    while (label.contains(QChar(code)))
        ++code;
    return QChar(code);
}

/// Splits "low <= label <= high". A label with placeholders takes the upper bound in their places, once or several times,
/// so what stands between the bounds is made in the way in which the line was.
bool splitRange(const QString &label, const QString &line, BoundTexts *bounds)
{
    const int lowEnd = int(line.indexOf(QLatin1Char(' ')));
    if (lowEnd <= 0)
        return false;
    bounds->low = line.left(lowEnd);
    const QChar mark = markFor(label);
    const QString pattern = QString(QLatin1String("%1 <= %2 <= %3"))
                                .arg(QString(QLatin1String("")))
                                .arg(label, 0, QLatin1Char(' '))
                                .arg(QString(mark));
    const QStringList parts = pattern.split(mark);
    const int holes = int(parts.size()) - 1;
    const int width = int(line.size()) - lowEnd - (int(pattern.size()) - holes);
    if (holes < 1 || width <= 0 || width % holes != 0)
        return false;
    bounds->high = line.mid(lowEnd + int(parts.first().size()), width / holes);
    return line.mid(lowEnd) == parts.join(bounds->high);
}

/// The line that the attribute gives with the record.
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

/// The printed number. A negative one that was rounded to zero keeps its sign in the line, which zero does not have.
double numberIn(const QString &text, bool *isNumber)
{
    const double number = text.toDouble(isNumber);
    const bool isRoundedAway = number == 0 && text.startsWith(QLatin1Char('-'));
    return isRoundedAway ? -std::numeric_limits<double>::denorm_min() : number;
}

/// The printed number, or the limit if the limit is printed like it and the number lies beyond.
double floatWithin(double number, const QString &text, const DmlAttrDef &definition)
{
    if (number < definition.floatMin && text == printed(definition.floatMin))
        return definition.floatMin;
    if (number > definition.floatMax && text == printed(definition.floatMax))
        return definition.floatMax;
    return number;
}

bool readFloats(const BoundTexts &bounds, const DmlAttrDef &definition, DmlAttrValue *record)
{
    bool isLow = false;
    bool isHigh = false;
    record->floatLow = floatWithin(numberIn(bounds.low, &isLow), bounds.low, definition);
    record->floatHigh = floatWithin(numberIn(bounds.high, &isHigh), bounds.high, definition);
    return isLow && isHigh;
}

/// Reads what stands in the line beside the label; the name, type and isSet are there already.
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
    // A number that is written in another way was not written by the dialog.
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
