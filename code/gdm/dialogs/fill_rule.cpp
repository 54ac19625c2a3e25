#include "gdm/dialogs/fill_rule.h"

#include "gdm/host/gen_services.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_records.h"

#include <QByteArray>

#include <cstdio>

namespace Zudunmaf
{

FillRule::FillRule(int entityMask, const QString &group, bool allGroups, const QString &filterText,
                   bool byPrompt, bool showObsolete)
    : m_entityMask(static_cast<unsigned int>(entityMask))
    , m_group(group)
    , m_allGroups(allGroups)
    , m_byPrompt(byPrompt)
    , m_showObsolete(showObsolete)
{
    const QByteArray pattern = filterText.isEmpty() ? QByteArray("*") : filterText.toLocal8Bit();
    std::snprintf(m_pattern, sizeof m_pattern, "%.64s", pattern.constData());
}

bool FillRule::accepts(const DmlAttrDef &definition) const
{
    if (!(definition.entityMask & m_entityMask))
        return false;
    const FieldText<sizeof definition.group> group(definition.group);
    if (!m_allGroups && m_group.compare(group.toString(), Qt::CaseInsensitive) != 0)
        return false;
    if (!m_showObsolete && gen__str_cmp_nc(group.bytes(), "Obsolete") == 0)
        return false;
    return textMatches(definition);
}

bool FillRule::textMatches(const DmlAttrDef &definition) const
{
    const FieldText<sizeof definition.name> name(definition.name);
    if (!m_byPrompt)
        return gen__str_cmp_reg(name.bytes(), m_pattern);
    const FieldText<sizeof definition.prompt> prompt(definition.prompt);
    return gen__str_cmp_reg(gen__nls_nlsa_get_att_prompt(name.bytes(), prompt.bytes()), m_pattern);
}

} // namespace Zudunmaf
