#ifndef GDM_DIALOGS_FILTER_ROWS_H
#define GDM_DIALOGS_FILTER_ROWS_H

#include "gdm/conditions/item_names.h"
#include "gdm/dialogs/dialog_kind.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/dialogs/visibility_rule.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_roles.h"

namespace Zudunmaf
{

/// Shows or hides each row of the available table. Ignores rows whose item is no `Item` or has no definition. If the
/// configuration cannot be read, reports that with the position of the call, changes no row and returns false.
/// Internal: not installed.
template <class Item>
bool filterRows(TvxAttributesSelectionDialog &dialog, const DialogKind &kind, const SourcePosition &here)
{
    // The order of these calls is part of the contract.
    const QString group = dialog.getSelectedGroupName();
    const int entityMask = dialog.getSelectedEntityMask();
    QSet<QString> hiddenNames;
    if (kind.chosenRows == HideChosenRows)
        hiddenNames = namesOf<Item>(dialog.getChosenList());
    const QList<QTableWidgetItem *> rows = dialog.getTopListItems(false);
    bool byPrompt = false;
    if (!readFlag(keys::DisplayByPrompt, &byPrompt, here))
        return false;

    const QString filterText = dialog.getUserFilterText();
    const QString allGroups = messageText(kind.allGroupsAtFilter);
    const VisibilityRule rule(entityMask, group, allGroups, filterText, byPrompt);
    for (const QTableWidgetItem *row : rows) {
        const Item *item = dynamic_cast<const Item *>(row);
        const DmlAttrDef *definition = item ? definitionIn(item->data(DmlAttrDefRole)) : nullptr;
        if (!definition)
            continue;
        const bool isHidden = !hiddenNames.isEmpty() && hiddenNames.contains(fieldString(definition->name));
        dialog.setTopViewRowsVisiblity(item->row(), !isHidden && rule.shows(*definition));
    }
    return true;
}

} // namespace Zudunmaf

#endif
