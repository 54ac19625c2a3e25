#include "tvx/attribute_facts.h"

#include "gdm/host/gen_services.h"
#include "gdm/host/host_text.h"
#include "tvx/attribute_item.h"
#include "tvx/tvx_texts.h"

#include <cmath>
#include <limits>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MostEntries = 4;
constexpr int Decimals = 3;
/// From here on, a number in full is longer than useful.
constexpr double LongNumber = 1e9;

int unitsOf(const QTableWidgetItem &item, const DmlAttrDef &definition, int displayUnits)
{
    if (isCondition(item))
        return definition.unitsClass;
    // A chosen row keeps its units when those of the dialog change.
    const QString cell = item.text();
    const auto blank = cell.indexOf(QLatin1Char(' '));
    if (blank >= 0)
        return gen__torvex_get_str_units(cell.mid(blank + 1).toLocal8Bit().constData());
    return cell.isEmpty() && displayUnits != -1 ? displayUnits : definition.unitsClass;
}

QString written(double number)
{
    if (!(std::fabs(number) < LongNumber))
        return QString::number(number, 'g', 6);
    QString text = QString::number(number, 'f', Decimals);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString shortened(const QStringList &entries)
{
    const QString comma = QStringLiteral(", ");
    if (entries.size() <= MostEntries)
        return entries.join(comma);
    const QStringList first = entries.mid(0, MostEntries - 1);
    return first.join(comma) + comma + textOf(texts::More).arg(entries.size() - first.size());
}

} // namespace

QString factSeparator()
{
    return QStringLiteral("  \u00b7  "); // a middle dot
}

QString joinedFacts(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(factSeparator());
}

AttributeFacts::AttributeFacts(const QTableWidgetItem &item, int displayUnits)
    : m_definition(definitionOf(item))
    , m_units(-1)
{
    if (m_definition && m_definition->type == DmlAttrFloat)
        m_units = unitsOf(item, *m_definition, displayUnits);
}

QString AttributeFacts::taken() const
{
    if (!m_definition)
        return QString();
    switch (m_definition->type) {
    case DmlAttrBoolean:
        return textOf(texts::YesOrNo);
    case DmlAttrText: {
        const QStringList choices = entries();
        return choices.isEmpty() ? typeText() : textOf(texts::TextSuchAs).arg(shortened(choices));
    }
    case DmlAttrOption:
        return shortened(entries());
    default:
        return isUnlimited() ? withUnits(typeText()) : limits();
    }
}

QStringList AttributeFacts::title() const
{
    if (!m_definition)
        return {};
    QStringList parts = {fieldString(m_definition->prompt), fieldString(m_definition->name),
                         fieldString(m_definition->group)};
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts;
}

QStringList AttributeFacts::facts() const
{
    QStringList parts = factsWithoutLimits();
    if (parts.isEmpty())
        return parts;
    // Entries can fill the line.
    const bool isNumber = m_definition->type == DmlAttrInteger || m_definition->type == DmlAttrFloat;
    parts.insert(isNumber ? 1 : static_cast<int>(parts.size()), isUnlimited() ? units() : limits());
    parts.removeAll(QString());
    return parts;
}

QStringList AttributeFacts::factsWithoutLimits() const
{
    QStringList parts;
    if (m_definition) {
        const QString value = defaultText();
        parts = QStringList{typeText(), value.isEmpty() ? QString() : textOf(texts::Default).arg(value)};
    }
    parts.removeAll(QString());
    return parts;
}

QString AttributeFacts::units() const
{
    if (!m_definition || m_definition->type != DmlAttrFloat)
        return QString();
    return QString(gen__torvex_cur_units_str(m_definition->unitsClass, m_units));
}

QString AttributeFacts::withUnits(const QString &number) const
{
    const QString text = units();
    return text.isEmpty() ? number : number + QLatin1Char(' ') + text;
}

QString AttributeFacts::typeText() const
{
    switch (m_definition->type) {
    case DmlAttrBoolean:
        return textOf(texts::TypeBoolean);
    case DmlAttrText:
        return textOf(texts::TypeText);
    case DmlAttrOption:
        return textOf(texts::TypeOption);
    case DmlAttrInteger:
        return textOf(texts::TypeInteger);
    case DmlAttrFloat:
        return textOf(texts::TypeFloat);
    default:
        return QString();
    }
}

/// Returns the limits of a number with the units, or all entries.
QString AttributeFacts::limits() const
{
    switch (m_definition->type) {
    case DmlAttrInteger:
        return textOf(texts::Range).arg(m_definition->intMin).arg(m_definition->intMax);
    case DmlAttrFloat:
        return withUnits(
            textOf(texts::Range)
                .arg(written(converted(m_definition->floatMin)), written(converted(m_definition->floatMax))));
    default:
        return entries().join(QStringLiteral(", "));
    }
}

QString AttributeFacts::defaultText() const
{
    switch (m_definition->type) {
    case DmlAttrBoolean:
        return textOf(m_definition->defaultBool ? texts::Yes : texts::No);
    case DmlAttrText:
        return QString(m_definition->defaultText);
    case DmlAttrOption:
        return entries().value(m_definition->defaultOption);
    case DmlAttrInteger:
        return QString::number(m_definition->defaultInt);
    case DmlAttrFloat:
        return withUnits(written(converted(double(m_definition->defaultFloat))));
    default:
        return QString();
    }
}

QStringList AttributeFacts::entries() const
{
    QStringList entries;
    const bool isText = m_definition->type == DmlAttrText;
    const bool hasEntries = isText ? m_definition->textChoiceCount >= 1 : m_definition->type == DmlAttrOption;
    if (!hasEntries || !m_definition->optionList)
        return entries;
    entries.reserve(m_definition->optionCount);
    for (int index = 0; index < m_definition->optionCount; ++index)
        entries.append(QString(m_definition->optionList[index]));
    return entries;
}

bool AttributeFacts::isUnlimited() const
{
    constexpr double most = double(std::numeric_limits<float>::max());
    if (m_definition->type == DmlAttrInteger)
        return m_definition->intMin == std::numeric_limits<int>::min() &&
               m_definition->intMax == std::numeric_limits<int>::max();
    return m_definition->type == DmlAttrFloat && m_definition->floatMin <= -most &&
           m_definition->floatMax >= most;
}

double AttributeFacts::converted(double number) const
{
    if (m_units == m_definition->unitsClass)
        return number;
    float shown = static_cast<float>(number);
    gen__torvex_units_convert_2(&shown, m_definition->unitsClass, m_units);
    return double(shown);
}

} // namespace tvx
} // namespace Zudunmaf
