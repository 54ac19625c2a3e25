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
    // A dictionary has many attributes and few groups: most are told by their bytes, which takes no QString. Bytes
    // that differ may still read alike, where they are no text in the encoding.
    const FieldText<sizeof definition.group> bytes(definition.group);
    if (!m_seenBytes.insert(bytes.bytes()).second)
        return;
    const QString group = bytes.toString();
    if (m_seen.contains(group))
        return;
    m_seen.insert(group);
    m_names.append(group);
}

} // namespace Zudunmaf
