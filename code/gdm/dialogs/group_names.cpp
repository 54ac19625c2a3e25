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
    // A dictionary has many attributes and few groups: comparing bytes first spares most of them a QString. Names that
    // differ in bytes can still be equal as text, because bytes that are invalid in the encoding all read alike.
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
