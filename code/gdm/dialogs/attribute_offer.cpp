#include "gdm/dialogs/attribute_offer.h"

#include "gdm/host/host_text.h"
#include "gdm/items/attr_records.h"

#include <QTableWidgetItem>

#include <cstdio>

namespace Zudunmaf
{

OwnedItems::~OwnedItems()
{
    qDeleteAll(m_items);
}

GroupNames::GroupNames(const QString &firstRow)
    : m_names(firstRow)
{
    m_seen.insert(firstRow);
}

void GroupNames::add(const DmlAttrDef &definition)
{
    const QString group = fieldString(definition.group);
    if (m_seen.contains(group))
        return;
    m_seen.insert(group);
    m_names.append(group);
}

void AttributeOffer::setFilterText(const QString &text)
{
    if (!text.isEmpty())
        std::snprintf(m_pattern, sizeof m_pattern, "%.64s", text.toLocal8Bit().constData());
}

bool AttributeOffer::takes(const DmlAttrDef &definition) const
{
    if (!(definition.entityMask & static_cast<unsigned int>(entityMask)))
        return false;
    const FieldText<sizeof definition.group> definedGroup(definition.group);
    if (!allGroups && group.compare(definedGroup.toString(), Qt::CaseInsensitive) != 0)
        return false;
    if (!showObsolete && gen__str_cmp_nc(definedGroup.bytes(), "Obsolete") == 0)
        return false;
    return textMatches(definition);
}

bool AttributeOffer::textMatches(const DmlAttrDef &definition) const
{
    const FieldText<sizeof definition.name> name(definition.name);
    if (!byPrompt)
        return gen__str_cmp_reg(name.bytes(), m_pattern);
    const FieldText<sizeof definition.prompt> prompt(definition.prompt);
    return gen__str_cmp_reg(gen__nls_nlsa_get_att_prompt(name.bytes(), prompt.bytes()), m_pattern);
}

} // namespace Zudunmaf
