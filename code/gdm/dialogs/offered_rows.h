#ifndef GDM_DIALOGS_OFFERED_ROWS_H
#define GDM_DIALOGS_OFFERED_ROWS_H

#include "gdm/dialogs/fill_rule.h"
#include "gdm/dialogs/owned_items.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/config_keys.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/host/host_text.h"
#include "gdm/items/attr_roles.h"

namespace Zudunmaf
{

/// The lines of a dialog that stand for the services which can fail in a fill.
struct FillPositions {
    SourcePosition labels;
    SourcePosition obsolete;
    SourcePosition walk;
};

/// Makes a row for each attribute that the configuration, the selection and the filter text let through, with
/// `newRow(definition, byPrompt, displayUnits)`. The order of the questions is part of the contract, and so
/// is asking for the dictionary before each step. False where a service failed: the rows are then to be
/// thrown away. Internal: not installed.
template <class NewRow>
bool collectRows(TvxAttributesSelectionDialog &dialog, const char *allGroupsKey,
                 const FillPositions &positions, NewRow newRow, OwnedItems *rows)
{
    bool byPrompt = false;
    if (!readFlag(keys::DisplayByPrompt, &byPrompt, positions.labels))
        return false;
    bool showObsolete = false;
    if (!readFlag(keys::ShowObsolete, &showObsolete, positions.obsolete))
        return false;

    const int entityMask = dialog.getSelectedEntityMask();
    const QString group = dialog.getSelectedGroupName();
    const bool allGroups = group == messageText(allGroupsKey);
    const QString filterText = dialog.getUserFilterText();
    const FillRule rule(entityMask, group, allGroups, filterText, byPrompt, showObsolete);

    // The walk takes every entity in both dialogs: the mask comes in with the offer.
    return walkDictionary([&dialog] { return dialog.getEntityDID(); }, EntityAll, positions.walk,
                          [&](const DmlAttrDef *definition) {
                              if (rule.accepts(*definition))
                                  rows->append(newRow(definition, byPrompt, dialog.displayUnits()));
                          });
}

} // namespace Zudunmaf

#endif
