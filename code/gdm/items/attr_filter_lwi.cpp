#include "gdm/items/attr_filter_lwi.h"

#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/float_decimals.h"

#include <QPoint>
#include <QPointF>

#include <cstring>
#include <utility>

namespace Zudunmaf
{

namespace
{

QString number(const QString &text, int value)
{
    return text.arg(value);
}

QString number(const QString &text, double value)
{
    return text.arg(value, 0, 'f', FloatDecimals);
}

template <class Number>
QString rangeCell(Number low, Number high)
{
    return number(number(QString(QLatin1String("%1 to %2")), low), high);
}

// One argument after the other, as result lines are defined: a placeholder in the label is replaced too.
template <class Number>
QString rangeLine(Number low, const QString &label, Number high)
{
    return number(number(QString(QLatin1String("%1 <= %2 <= %3")), low).arg(label), high);
}

/// Returns the text or the option's entry of a condition that is set; empty if there is none.
QString chosenText(const DmlAttrDef &definition, const DmlAttrValue &condition)
{
    return definition.type == DmlAttrText ? fieldString(condition.text)
                                          : QString(optionEntry(definition, condition.option));
}

/// Returns the condition in the record. Without a record, because a subclass can clear m_attrValue, one that is not
/// set.
const DmlAttrValue &conditionIn(const DmlAttrValue *record)
{
    static const DmlAttrValue none = DmlAttrValue();
    return record ? *record : none;
}

} // namespace

AttrFilterLWI::AttrFilterLWI()
    : AttrFilterLWI(DmlAttrValue())
{
}

AttrFilterLWI::AttrFilterLWI(const DmlAttrValue &condition)
    : DmlAttrLWI(ItemType_AttrFilter)
{
    takeRecord(condition);
}

AttrFilterLWI::AttrFilterLWI(const AttrFilterLWI &other)
    : DmlAttrLWI(other)
{
    takeRecord(conditionIn(other.record()));
}

AttrFilterLWI &AttrFilterLWI::operator=(const AttrFilterLWI &other) = default;

AttrFilterLWI::~AttrFilterLWI()
{
    if (DmlAttrValue *condition = record())
        gen__mem_free(condition, 1, __FILE__, __LINE__);
}

void AttrFilterLWI::takeRecord(const DmlAttrValue &condition)
{
    void *memory = gen__mem_malloc(sizeof condition, 1, __FILE__, __LINE__);
    std::memcpy(memory, &condition, sizeof condition);
    m_attrValue = variantOfRecord(memory);
}

DmlAttrValue *AttrFilterLWI::record() const
{
    return recordIn<DmlAttrValue>(m_attrValue);
}

QTableWidgetItem *AttrFilterLWI::clone() const
{
    // Without the setters, which would prime the record first. A base dialog clones each item twice.
    AttrFilterLWI *copy = new AttrFilterLWI(conditionIn(record()));
    copy->m_dmlAttribute = m_dmlAttribute;
    copy->m_displayPrompt = m_displayPrompt;
    copy->m_displayValue = true;
    return copy;
}

void AttrFilterLWI::setDmlAttribute(QVariant dmlAttribute)
{
    DmlAttrLWI::setDmlAttribute(std::move(dmlAttribute));
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    DmlAttrValue *condition = record();
    if (definition && condition)
        prime(*condition, *definition);
}

void AttrFilterLWI::setAttrValue(QVariant attrValue)
{
    const DmlAttrValue *given = recordIn<const DmlAttrValue>(attrValue);
    DmlAttrValue *condition = record();
    if (given && condition)
        std::memmove(condition, given, sizeof(DmlAttrValue));
}

QVariant AttrFilterLWI::data(int role) const
{
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    if (!definition)
        return DmlAttrLWI::data(role);

    switch (role) {
    case DmlAttrNameRole:
    case DmlAttrPromptRole:
    case DmlAttrTypeRole:
    case DmlAttrDefRole:
        return definitionData(m_dmlAttribute, role);
    case DmlAttrValueRole: {
        const QVariant value = conditionValue(*definition);
        return value.isValid() ? value : DmlAttrLWI::data(role);
    }
    case Qt::DisplayRole:
        return column() == 1 ? cellText(*definition) : labelText(*definition, m_displayPrompt);
    case DmlAttrFilterTextRole:
        return filterLine(*definition);
    case Qt::ToolTipRole:
        return m_displayPrompt ? DmlAttrLWI::data(role) : QVariant(fieldString(definition->prompt));
    default:
        return DmlAttrLWI::data(role);
    }
}

bool AttrFilterLWI::isShown() const
{
    return m_displayValue || isSelected();
}

/// Returns the condition as a value; invalid if it is not set or the type has none.
QVariant AttrFilterLWI::conditionValue(const DmlAttrDef &definition) const
{
    const DmlAttrValue *condition = record();
    if (!condition || !condition->isSet)
        return QVariant();

    switch (definition.type) {
    case DmlAttrBoolean:
        return true;
    case DmlAttrText:
        return fieldString(condition->text);
    case DmlAttrOption: {
        const char *entry = optionEntry(definition, condition->option);
        return entry ? QVariant(QString(entry)) : QVariant();
    }
    case DmlAttrInteger:
        return QPoint(condition->intLow, condition->intHigh);
    case DmlAttrFloat:
        return QPointF(condition->floatLow, condition->floatHigh);
    default:
        return QVariant();
    }
}

/// Returns the text of column 1.
QString AttrFilterLWI::cellText(const DmlAttrDef &definition) const
{
    const DmlAttrValue *condition = record();
    if (!condition || !condition->isSet || !isShown())
        return QString();

    switch (definition.type) {
    case DmlAttrText:
    case DmlAttrOption:
        return chosenText(definition, *condition);
    case DmlAttrInteger:
        return rangeCell(condition->intLow, condition->intHigh);
    case DmlAttrFloat:
        return rangeCell(condition->floatLow, condition->floatHigh);
    default:
        return QString();
    }
}

/// Returns the line for the host; the label alone if the condition is not set.
QString AttrFilterLWI::filterLine(const DmlAttrDef &definition) const
{
    if (!isShown() || definition.type < DmlAttrBoolean || definition.type > DmlAttrFloat)
        return QString();

    const QString label = labelText(definition, m_displayPrompt);
    const DmlAttrValue *condition = record();
    if (!condition || !condition->isSet)
        return label;

    switch (definition.type) {
    case DmlAttrText:
    case DmlAttrOption: {
        const QString chosen = chosenText(definition, *condition);
        return chosen.isEmpty() ? label : QString(QLatin1String("%1 = ")).arg(label) + chosen;
    }
    case DmlAttrInteger:
        return rangeLine(condition->intLow, label, condition->intHigh);
    case DmlAttrFloat:
        return rangeLine(condition->floatLow, label, condition->floatHigh);
    default:
        return label;
    }
}

QString AttrFilterLWI::toString() const
{
    return data(DmlAttrFilterTextRole).toString();
}

QString AttrFilterLWI::valueAsString() const
{
    return QString();
}

void AttrFilterLWI::setValueFromString(const QString &) {}

} // namespace Zudunmaf
