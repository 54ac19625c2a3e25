#include "gdm/items/feature_attr_lwi.h"

#include "gdm/host/gen_services.h"
#include "gdm/host/qt_compat.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_description.h"
#include "gdm/items/attr_roles.h"
#include "gdm/items/float_decimals.h"

#include <QByteArray>
#include <QStringList>

#include <utility>

namespace Zudunmaf
{

FeatureAttrLWI::FeatureAttrLWI()
    : DmlAttrLWI(ItemType_FeatureAttr)
{
}

FeatureAttrLWI::FeatureAttrLWI(const FeatureAttrLWI &other) = default;

FeatureAttrLWI &FeatureAttrLWI::operator=(const FeatureAttrLWI &other) = default;

FeatureAttrLWI::~FeatureAttrLWI() = default;

QTableWidgetItem *FeatureAttrLWI::clone() const
{
    // Without setDmlAttribute(), which would make a default value first.
    FeatureAttrLWI *copy = new FeatureAttrLWI;
    copy->m_dmlAttribute = m_dmlAttribute;
    copy->m_attrValue = m_attrValue;
    copy->m_displayPrompt = m_displayPrompt;
    copy->m_displayUnits = m_displayUnits;
    copy->m_displayValue = true;
    return copy;
}

void FeatureAttrLWI::setDmlAttribute(QVariant dmlAttribute)
{
    DmlAttrLWI::setDmlAttribute(std::move(dmlAttribute));
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    if (!definition)
        return;
    const QVariant value = defaultValue(*definition);
    if (value.isValid())
        m_attrValue = value;
}

void FeatureAttrLWI::setAttrValue(QVariant attrValue)
{
    DmlAttrLWI::setAttrValue(std::move(attrValue));
}

QVariant FeatureAttrLWI::data(int role) const
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
    case DmlAttrValueRole:
        return compat::isNullVariant(m_attrValue) ? DmlAttrLWI::data(role) : m_attrValue;
    case Qt::DisplayRole:
        return cellText(*definition);
    case Qt::ToolTipRole:
        return attributeDescription(*definition, m_displayUnits);
    default:
        return DmlAttrLWI::data(role);
    }
}

QString FeatureAttrLWI::cellText(const DmlAttrDef &definition) const
{
    if (column() != 1)
        return labelText(definition, m_displayPrompt);
    const bool shown = m_displayValue || isSelected();
    return shown ? valueAsString() : QString();
}

QString FeatureAttrLWI::toString() const
{
    return data(Qt::DisplayRole).toString();
}

QString FeatureAttrLWI::valueAsString() const
{
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    if (definition && !compat::isNullVariant(m_attrValue)) {
        switch (definition->type) {
        case DmlAttrText:
        case DmlAttrOption:
            return m_attrValue.toString();
        case DmlAttrInteger:
            return QString::number(m_attrValue.toInt());
        case DmlAttrFloat:
            return floatAsString(*definition);
        default:
            break;
        }
    }
    return QString(QLatin1String(""));
}

QString FeatureAttrLWI::floatAsString(const DmlAttrDef &definition) const
{
    if (m_displayUnits == -1)
        return QString(QLatin1String("%1")).arg(m_attrValue.toDouble(), 0, 'f', FloatDecimals);

    float value = static_cast<float>(m_attrValue.toDouble());
    gen__torvex_units_convert_2(&value, definition.unitsClass, m_displayUnits);
    const QString unit(gen__torvex_cur_units_str(definition.unitsClass, m_displayUnits));
    return QString(QLatin1String("%1 %2")).arg(double(value), 0, 'f', FloatDecimals).arg(unit);
}

void FeatureAttrLWI::setValueFromString(const QString &text)
{
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    if (!definition)
        return;
    switch (definition->type) {
    case DmlAttrText:
    case DmlAttrOption:
        m_attrValue = text;
        break;
    case DmlAttrInteger:
        m_attrValue = text.toInt(nullptr, 10);
        break;
    case DmlAttrFloat:
        m_attrValue = floatFromString(*definition, text);
        break;
    default:
        break;
    }
}

QVariant FeatureAttrLWI::floatFromString(const DmlAttrDef &definition, const QString &text)
{
    if (definition.unitsClass == -1)
        return text.toDouble();

    const QStringList parts = text.split(QLatin1Char(' '), compat::SkipEmptyParts, Qt::CaseSensitive);
    if (parts.count() != 2)
        return text.toDouble();

    float value = static_cast<float>(parts.at(0).trimmed().toDouble());
    const QByteArray unit = parts.at(1).trimmed().toLocal8Bit();
    const int code = gen__torvex_get_str_units(unit.constData());
    gen__torvex_units_convert_2(&value, code, definition.unitsClass);
    return QVariant::fromValue<float>(value);
}

} // namespace Zudunmaf
