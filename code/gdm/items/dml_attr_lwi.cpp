#include "gdm/items/dml_attr_lwi.h"

#include "gdm/items/attr_access.h"

#include <utility>

namespace Zudunmaf
{

DmlAttrLWI::DmlAttrLWI(ItemType_Enum itemType)
    : QTableWidgetItem(QTableWidgetItem::UserType)
    , m_displayPrompt(false)
    , m_displayValue(false)
    , m_displayUnits(-1)
    , m_itemType(itemType)
{
}

DmlAttrLWI::DmlAttrLWI(const DmlAttrLWI &other) = default;

DmlAttrLWI &DmlAttrLWI::operator=(const DmlAttrLWI &other)
{
    QTableWidgetItem::operator=(other);
    // The virtual setters make a filter item copy the condition into its own record. If both items point to the same
    // record, setDmlAttribute() would clear the condition before it is copied.
    if (recordIn<void>(m_attrValue) == recordIn<void>(other.m_attrValue))
        m_dmlAttribute = other.m_dmlAttribute;
    else
        setDmlAttribute(other.m_dmlAttribute);
    setAttrValue(other.m_attrValue);
    m_displayPrompt = other.m_displayPrompt;
    m_displayValue = other.m_displayValue;
    m_displayUnits = other.m_displayUnits;
    m_itemType = other.m_itemType;
    return *this;
}

DmlAttrLWI::~DmlAttrLWI() = default;

QTableWidgetItem *DmlAttrLWI::clone() const
{
    DmlAttrLWI *copy = new DmlAttrLWI(m_itemType);
    copy->setDmlAttribute(m_dmlAttribute);
    copy->setAttrValue(m_attrValue);
    copy->setDisplayPrompt(m_displayPrompt);
    copy->setDisplayValue(m_displayValue);
    copy->setDisplayUnits(m_displayUnits);
    return copy;
}

QVariant DmlAttrLWI::data(int role) const
{
    return QTableWidgetItem::data(role);
}

void DmlAttrLWI::setDmlAttribute(QVariant dmlAttribute)
{
    m_dmlAttribute = std::move(dmlAttribute);
}

void DmlAttrLWI::setAttrValue(QVariant attrValue)
{
    m_attrValue = std::move(attrValue);
}

QString DmlAttrLWI::toString() const
{
    return QString();
}

QString DmlAttrLWI::valueAsString() const
{
    return QString();
}

void DmlAttrLWI::setValueFromString(const QString &) {}

QVariant DmlAttrLWI::dmlAttribute() const
{
    return m_dmlAttribute;
}

QVariant DmlAttrLWI::attrValue() const
{
    return m_attrValue;
}

bool DmlAttrLWI::displayPrompt() const
{
    return m_displayPrompt;
}

bool DmlAttrLWI::displayValue()
{
    return m_displayValue;
}

int DmlAttrLWI::displayUnits()
{
    return m_displayUnits;
}

DmlAttrLWI::ItemType_Enum DmlAttrLWI::itemType()
{
    return m_itemType;
}

int DmlAttrLWI::getDmlAttrType()
{
    const DmlAttrDef *definition = definitionIn(m_dmlAttribute);
    return definition ? definition->type : 0;
}

void DmlAttrLWI::setDisplayPrompt(bool displayPrompt)
{
    m_displayPrompt = displayPrompt;
}

void DmlAttrLWI::setDisplayValue(bool displayValue)
{
    m_displayValue = displayValue;
}

void DmlAttrLWI::setDisplayUnits(int displayUnits)
{
    m_displayUnits = displayUnits;
}

} // namespace Zudunmaf
