#include "gdm/dialogs/group_names.h"

#include "gdm/host/host_text.h"
#include "gdm/items/attr_records.h"

namespace Zudunmaf
{

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

} // namespace Zudunmaf
