#include "gdm/dialogs/fill.h"

#include "gdm/dialogs/group_names.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/host_text.h"

namespace Zudunmaf
{

TvxDataItem *newEntity(const char *textKey, EntityMask mask)
{
    const QVariant data = mask == EntityAll ? QVariant(uint(mask)) : QVariant(int(mask));
    return new TvxDataItem(messageText(textKey), data, 0);
}

bool collectGroups(const TvxAttributesSelectionDialog &dialog, const DialogKind &kind,
                   const SourcePosition &here, QStringList *groups)
{
    const int did = dialog.getEntityDID();
    if (did == -1)
        return false;
    GroupNames names(messageText(kind.allGroupsRow));
    if (!walkDictionary([did] { return did; }, kind.groupMask, here,
                        [&names](const DmlAttrDef *definition) { names.add(*definition); }))
        return false;
    *groups = names.list();
    return true;
}

Fill::Fill(TvxAttributesSelectionDialog &dialog, const DialogKind &kind)
    : m_dialog(dialog)
    , m_kind(kind)
    , m_byPrompt(false)
    , m_showObsolete(false)
{
}

Fill::~Fill()
{
    qDeleteAll(m_items);
}

bool Fill::readLabels(const SourcePosition &here)
{
    return readFlag(keys::DisplayByPrompt, &m_byPrompt, here);
}

bool Fill::readObsolete(const SourcePosition &here)
{
    return readFlag(keys::ShowObsolete, &m_showObsolete, here);
}

FillRule Fill::rule() const
{
    // Separate statements, because the order of the calls is part of the contract.
    const int entityMask = m_dialog.getSelectedEntityMask();
    const QString group = m_dialog.getSelectedGroupName();
    const bool allGroups = group == messageText(m_kind.allGroupsAtFill);
    const QString filterText = m_dialog.getUserFilterText();
    return FillRule(entityMask, group, allGroups, filterText, m_byPrompt, m_showObsolete);
}

} // namespace Zudunmaf
