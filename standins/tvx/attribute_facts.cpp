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
/// From here on, a number in full is longer than useful. Integers are below.
constexpr double LongNumber = 1e10;

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

QString shortened(const QStringList &entries)
{
    const int count = int(entries.size());
    return listed(entries.mid(0, count <= MostEntries ? count : MostEntries - 1), count);
}

} // namespace

QString factSeparator()
{
    return QStringLiteral("  \u00b7  "); // a middle dot
}

QString listed(const QStringList &first, int count)
{
    QStringList parts = first;
    if (count > first.size())
        parts.append(textOf(texts::More).arg(count - first.size()));
    return parts.join(QStringLiteral(", "));
}

QString joinedFacts(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(factSeparator());
}

QString shortNumber(double number, int decimals)
{
    if (!(std::fabs(number) < LongNumber))
        return QString::number(number, 'g', 6);
    QString text = QString::number(number, 'f', decimals);
    while (decimals > 0 && text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
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
    default: {
        const QString range = limits();
        return range.isEmpty() ? withUnits(typeText()) : range;
    }
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
    const QString range = limits();
    parts.insert(1, range.isEmpty() ? units() : range);
    // Entries can fill the line.
    parts.append(entries().join(QStringLiteral(", ")));
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

QString AttributeFacts::limits() const
{
    if (!m_definition || isUnlimited())
        return QString();
    if (m_definition->type == DmlAttrInteger)
        return textOf(texts::Range).arg(m_definition->intMin).arg(m_definition->intMax);
    if (m_definition->type == DmlAttrFloat)
        return withUnits(
            textOf(texts::Range).arg(written(m_definition->floatMin), written(m_definition->floatMax)));
    return QString();
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
        return withUnits(written(double(m_definition->defaultFloat)));
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

/// Returns a number of the definition in the units of the row.
QString AttributeFacts::written(double number) const
{
    if (m_units == m_definition->unitsClass)
        return shortNumber(number, Decimals);
    float shown = static_cast<float>(number);
    gen__torvex_units_convert_2(&shown, m_definition->unitsClass, m_units);
    return shortNumber(double(shown), Decimals);
}

} // namespace tvx
} // namespace Zudunmaf
