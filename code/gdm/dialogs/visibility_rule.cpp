#include "gdm/dialogs/visibility_rule.h"

#include "gdm/host/host_text.h"
#include "gdm/items/attr_records.h"

namespace Zudunmaf
{

VisibilityRule::VisibilityRule(int entityMask, const QString &group, const QString &allGroups,
                               const QString &filterText, bool byPrompt)
    : m_entityMask(static_cast<unsigned int>(entityMask))
    , m_group(group)
    , m_allGroups(group == allGroups)
    , m_pattern(filterText)
    , m_byPrompt(byPrompt)
{
}

bool VisibilityRule::shows(const DmlAttrDef &definition) const
{
    if (!(definition.entityMask & m_entityMask))
        return false;
    const bool textMatches =
        m_byPrompt ? m_pattern.matches(FieldText<sizeof definition.prompt>(definition.prompt).bytes())
                   : m_pattern.matches(FieldText<sizeof definition.name>(definition.name).bytes());
    return textMatches && groupShows(definition);
}

bool VisibilityRule::groupShows(const DmlAttrDef &definition) const
{
    return m_allGroups || m_group == fieldString(definition.group);
}

} // namespace Zudunmaf
