#include "condition_rows.h"

#include "gdm/items/attr_records.h"
#include "gdm/items/dml_attr_lwi.h"
#include "printed_number.h"

#include <QRegularExpression>

#include <cstring>

namespace Zudunmaf::demo
{

namespace
{

/// A condition on the attribute that is set but says nothing yet.
DmlAttrValue emptyCondition(const DmlAttrDef &definition)
{
    DmlAttrValue condition;
    std::memset(&condition, 0, sizeof condition);
    condition.type = definition.type;
    condition.isSet = 1;
    return condition;
}

} // namespace

QString ConditionRows::takeLine(const QString &line)
{
    static const QRegularExpression range(QStringLiteral("^(\\S+) <= (.+) <= (\\S+)$"));
    const QRegularExpressionMatch match = range.match(line);
    if (match.hasMatch())
        return takeRange(match.captured(1), match.captured(2), match.captured(3));

    const QString separator = QStringLiteral(" = ");
    const int split = int(line.indexOf(separator));
    if (split >= 0)
        return takeText(line.left(split), line.mid(split + separator.size()));

    const DmlAttrLWI *offered = find(line);
    if (!offered)
        return unknown(line);
    add(*offered);
    return QString();
}

QString ConditionRows::takeRange(const QString &low, const QString &name, const QString &high)
{
    const DmlAttrLWI *offered = find(name);
    if (!offered)
        return unknown(name);
    const DmlAttrDef &definition = definitionOf(*offered);
    DmlAttrValue condition = emptyCondition(definition);
    switch (definition.type) {
    case DmlAttrInteger:
        return addRow(*offered, condition, setIntegers(definition, condition, low, high));
    case DmlAttrFloat:
        return addRow(*offered, condition, setFloats(definition, condition, low, high));
    default:
        return QStringLiteral("'%1' is no number and takes no bounds").arg(name);
    }
}

QString ConditionRows::takeText(const QString &name, const QString &text)
{
    const DmlAttrLWI *offered = find(name);
    if (!offered)
        return unknown(name);
    const DmlAttrDef &definition = definitionOf(*offered);
    DmlAttrValue condition = emptyCondition(definition);
    switch (definition.type) {
    case DmlAttrText:
        return addRow(*offered, condition, setText(condition, text));
    case DmlAttrOption:
        return addRow(*offered, condition, setOption(definition, condition, text));
    default:
        return QStringLiteral("'%1' is neither a text nor an option and equals nothing").arg(name);
    }
}

QString ConditionRows::addRow(const DmlAttrLWI &offered, DmlAttrValue &condition, const QString &problem)
{
    // The item copies the record.
    if (problem.isEmpty())
        add(offered).setAttrValue(QVariant::fromValue<void *>(&condition));
    return problem;
}

QString ConditionRows::setIntegers(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &low,
                                   const QString &high)
{
    for (const QString &bound : {low, high}) {
        const QString problem = PrintedNumber::problemOfInteger(bound, definition.intMin, definition.intMax);
        if (!problem.isEmpty())
            return problem;
    }
    condition.intLow = low.toInt();
    condition.intHigh = high.toInt();
    return condition.intLow <= condition.intHigh ? QString() : PrintedNumber::wrongOrder(low, high);
}

QString ConditionRows::setFloats(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &low,
                                 const QString &high)
{
    for (const QString &bound : {low, high}) {
        const QString problem =
            PrintedNumber::problemOfFloat(bound, definition.floatMin, definition.floatMax);
        if (!problem.isEmpty())
            return problem;
    }
    condition.floatLow = qBound(definition.floatMin, low.toDouble(), definition.floatMax);
    condition.floatHigh = qBound(definition.floatMin, high.toDouble(), definition.floatMax);
    return condition.floatLow <= condition.floatHigh ? QString() : PrintedNumber::wrongOrder(low, high);
}

QString ConditionRows::setText(DmlAttrValue &condition, const QString &text)
{
    const QByteArray bytes = text.toLocal8Bit();
    if (size_t(bytes.size()) >= sizeof condition.text)
        return QStringLiteral("the text is longer than %1 bytes").arg(sizeof condition.text - 1);
    condition.isSet = bytes.isEmpty() ? 0 : 1;
    std::memcpy(condition.text, bytes.constData(), size_t(bytes.size()));
    return QString();
}

QString ConditionRows::setOption(const DmlAttrDef &definition, DmlAttrValue &condition, const QString &text)
{
    for (int index = 0; index < definition.optionCount; ++index) {
        if (QString::fromUtf8(definition.optionList[index]) == text) {
            condition.option = index;
            return QString();
        }
    }
    return QStringLiteral("'%1' is no option of '%2'").arg(text, QString::fromUtf8(definition.name));
}

} // namespace Zudunmaf::demo
